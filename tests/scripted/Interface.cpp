#include "tests/scripted/Interface.h"

#include "tests/scripted/States.h"
#include "tests/scripted/WorkingCopy.h"

namespace scripted {

Interface::Interface(WorkingCopy& copy, std::size_t serial, std::string name, Sides sides)
    : m_name(std::move(name)), m_copy(copy), m_serial(serial)
{
    join(std::move(sides));
}

Interface::~Interface() { leaveSides(); }

void Interface::join(Sides sides)
{
    leaveSides();
    m_sides = std::move(sides);
    for (const auto* side : {&m_sides.first, &m_sides.second}) {
        for (gtm::Boundary* boundary : *side) {
            scriptedOf(boundary)->m_interfaces[m_serial] = this;
        }
    }
}

void Interface::leaveSides()
{
    for (const auto* side : {&m_sides.first, &m_sides.second}) {
        for (gtm::Boundary* boundary : *side) {
            scriptedOf(boundary)->m_interfaces.erase(m_serial);
        }
    }
}

gtm::Interface::State Interface::judgedState() const
{
    std::set<gtm::Boundary*> all = m_sides.first;
    all.insert(m_sides.second.begin(), m_sides.second.end());
    if (all.size() < m_sides.first.size() + m_sides.second.size()) {
        return State::SameBoundary;
    }
    for (const gtm::Boundary* boundary : all) {
        const gtm::Boundary::State state = boundary->state();
        if (state == gtm::Boundary::State::Overlapping || state == gtm::Boundary::State::Inconsistent) {
            return State::InconsistentBoundaries;
        }
    }
    for (const auto* side : {&m_sides.first, &m_sides.second}) {
        std::set<gtm::Interior*> interiors;
        for (const gtm::Boundary* boundary : *side) {
            interiors.insert(boundary->interior());
        }
        if (interiors.size() > 1) {
            return State::MoreThanOneVolumePerSide;
        }
    }
    return State::Valid;
}

InterfaceAnswers& answersOf(gtm::Interface* interface) { return scriptedOf(interface)->answers(); }

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
    self->copy().called(self->subject(), "rename", name);
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
    self->copy().called(self->subject(), "relocate", sides.first, sides.second, enforceRestrictions);
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
    self->copy().called(self->subject(), "destroy");
    self->copy().end(self);
}

} // namespace gtm
