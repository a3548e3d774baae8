#include "examples/own-kernel/Interface.h"

#include "gtm/Boundary.h"
#include "gtm/FaceUse.h"

#include "examples/own-kernel/Lists.h"
#include "examples/own-kernel/WorkingCopy.h"

namespace gtm {
namespace {

const own::Interface& self(const Interface* interface) { return static_cast<const own::Interface&>(*interface); }
own::Interface& self(Interface* interface) { return static_cast<own::Interface&>(*interface); }

/// The face uses of one side, in which each may be once.
Interface::State gather(const std::set<Boundary*>& side, std::set<FaceUse*>& all, std::set<FaceUse*>& ofSide)
{
    for (const Boundary* boundary : side) {
        const Boundary::State state = boundary->state();
        if (state != Boundary::State::Valid && state != Boundary::State::Empty)
            return Interface::State::InconsistentBoundaries;
        for (FaceUse* faceUse : boundary->faceUses()) {
            if (!all.insert(faceUse).second)
                return Interface::State::InconsistentBoundaries;
            ofSide.insert(faceUse);
        }
    }
    return Interface::State::Valid;
}

bool isOfOneVolume(const std::set<Boundary*>& side)
{
    std::set<Interior*> interiors;
    for (const Boundary* boundary : side)
        interiors.insert(boundary->interior());
    return interiors.size() <= 1;
}

bool hasBothSidesOfAFace(const std::set<FaceUse*>& faceUses)
{
    for (const FaceUse* faceUse : faceUses)
        if (faceUse->partner() != nullptr && faceUses.count(faceUse->partner()) != 0)
            return true;
    return false;
}

} // namespace

std::string Interface::stateAsString(State state) { return own::stateText(static_cast<int>(state)); }
std::string Interface::name() const { return self(this).m_name; }
std::string Interface::rename(const std::string& name) { return self(this).m_name = name; }
Interface::Sides Interface::sides() const { return self(this).m_sides; }

Interface::State Interface::state() const
{
    const Sides& sides = self(this).m_sides;
    for (Boundary* boundary : sides.first)
        if (sides.second.count(boundary) != 0)
            return State::SameBoundary;
    std::set<FaceUse*> all;
    std::set<FaceUse*> first;
    std::set<FaceUse*> second;
    if (gather(sides.first, all, first) != State::Valid || gather(sides.second, all, second) != State::Valid)
        return State::InconsistentBoundaries;
    if (!isOfOneVolume(sides.first) || !isOfOneVolume(sides.second))
        return State::MoreThanOneVolumePerSide;
    if (hasBothSidesOfAFace(first) || hasBothSidesOfAFace(second))
        return State::InconsistentSharedFaces;
    return first.empty() || second.empty() ? State::Empty : State::Valid;
}

Interface::State Interface::relocate(const Sides& sides, bool enforceRestrictions)
{
    const own::WorkingCopy& copy = self(this).m_copy;
    if (!copy.areOurs(sides.first) || !copy.areOurs(sides.second))
        return State::InconsistentBoundaries;
    const Sides before = std::exchange(self(this).m_sides, sides);
    const State result = state();
    if (enforceRestrictions && result != State::Valid)
        self(this).m_sides = before;
    return result;
}

void Interface::destroy() { self(this).m_copy.end(this); }

} // namespace gtm
