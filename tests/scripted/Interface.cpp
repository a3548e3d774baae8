#include "tests/scripted/Interface.h"

#include "tests/scripted/States.h"
#include "tests/scripted/WorkingCopy.h"

namespace scripted {

Interface::Interface(WorkingCopy& copy, std::string name, const Sides& sides) : m_name(std::move(name)), m_copy(copy)
{
    join(sides);
}

Interface::~Interface() { leaveSides(); }

void Interface::join(const Sides& sides)
{
    leaveSides();
    const auto use = [this](gtm::Boundary* boundary, bool isOnFirstSide, bool isOnSecondSide) {
        std::list<Interface*>& interfaces = scriptedOf(boundary)->m_interfaces;
        const auto place = interfaces.insert(interfaces.end(), this);
        m_uses.push_back({scriptedOf(boundary), isOnFirstSide, isOnSecondSide, place});
    };
    m_uses.reserve(sides.first.size() + sides.second.size());
    for (gtm::Boundary* boundary : sides.first) {
        use(boundary, true, sides.second.contains(boundary));
    }
    for (gtm::Boundary* boundary : sides.second) {
        if (!sides.first.contains(boundary)) {
            use(boundary, false, true);
        }
    }
}

gtm::Interface::Sides Interface::sides() const
{
    Sides sides;
    for (const Use& use : m_uses) {
        if (use.isOnFirstSide) {
            sides.first.insert(use.boundary);
        }
        if (use.isOnSecondSide) {
            sides.second.insert(use.boundary);
        }
    }
    return sides;
}

void Interface::leaveSides()
{
    for (const Use& use : m_uses) {
        use.boundary->m_interfaces.erase(use.place);
    }
    m_uses.clear();
}

gtm::Interface::State Interface::judgedState() const
{
    for (const Use& use : m_uses) {
        if (use.isOnFirstSide && use.isOnSecondSide) {
            return State::SameBoundary;
        }
    }
    for (const Use& use : m_uses) {
        const gtm::Boundary::State state = use.boundary->state();
        if (state == gtm::Boundary::State::Overlapping || state == gtm::Boundary::State::Inconsistent) {
            return State::InconsistentBoundaries;
        }
    }
    for (const bool isFirst : {true, false}) {
        std::set<gtm::Interior*> interiors;
        for (const Use& use : m_uses) {
            if (isFirst ? use.isOnFirstSide : use.isOnSecondSide) {
                interiors.insert(use.boundary->interior());
            }
        }
        if (interiors.size() > 1) {
            return State::MoreThanOneVolumePerSide;
        }
    }
    return State::Valid;
}

InterfaceAnswers& answersOf(gtm::Interface* interface) { return scriptedOf(interface)->answersToSet(); }

std::string stateText(int state)
{
    switch (static_cast<gtm::Interface::State>(state)) {
    case gtm::Interface::State::Valid:
        return "valid";
    case gtm::Interface::State::Empty:
        return "empty";
    case gtm::Interface::State::Unresolvable:
        return "unresolvable";
    case gtm::Interface::State::Incomplete:
        return "incomplete";
    case gtm::Interface::State::Inconsistent:
        return "inconsistent";
    case gtm::Interface::State::Overlapping:
        return "overlapping";
    case gtm::Interface::State::SameBoundary:
        return "same boundary on both sides";
    case gtm::Interface::State::InconsistentBoundaries:
        return "inconsistent boundaries";
    case gtm::Interface::State::MoreThanOneVolumePerSide:
        return "more than one volume on a side";
    case gtm::Interface::State::InconsistentSharedFaces:
        return "inconsistent with shared faces";
    }
    return "";
}

} // namespace scripted

namespace gtm {

using scripted::scriptedOf;

std::string Interface::stateAsString(State state) { return scripted::stateText(static_cast<int>(state)); }

std::string Interface::name() const
{
    scriptedOf(this)->copy().throwIfAsked("name");
    return scriptedOf(this)->m_name;
}

std::string Interface::rename(const std::string& name)
{
    auto* self = scriptedOf(this);
    self->copy().called(*self, "rename", name);
    self->m_name = self->copy().nameFor(name);
    return self->answers().renameResult.value_or(self->m_name);
}

Interface::Sides Interface::sides() const { return scriptedOf(this)->sides(); }

Interface::State Interface::state() const
{
    const auto* self = scriptedOf(this);
    return self->answers().state.value_or(self->copy().isJudging() ? self->judgedState() : State::Valid);
}

Interface::State Interface::relocate(const Sides& sides, bool enforceRestrictions)
{
    auto* self = scriptedOf(this);
    self->copy().called(*self, "relocate", sides.first, sides.second, enforceRestrictions);
    const Sides before = self->sides();
    self->join(sides);
    const State result = self->answers().relocateResult.value_or(state());
    if (enforceRestrictions && result != State::Valid) {
        self->join(before);
    }
    return result;
}

void Interface::destroy()
{
    auto* self = scriptedOf(this);
    self->copy().called(*self, "destroy");
    self->copy().end(self);
}

} // namespace gtm
