// Random sequences of every change, with every answer compared after each step.

#include "gtm/LocationModel.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "tests/locationmodel/BruteForce.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace {

/// Raw material of one step: what to do, and numbers from which the step chooses.
using Step = std::vector<std::uint32_t>;

template <class Region>
std::vector<std::string> ids(const std::vector<Region*>& regions)
{
    std::vector<std::string> list;
    for (const auto* region : regions) {
        list.push_back(region->id());
    }
    return list;
}

std::unique_ptr<gtm::bundled::LocationModel> makeModel(const std::vector<std::uint32_t>& shape)
{
    gtm::bundled::TopologyBuilder builder;
    builder.addPart("pa");
    builder.addPart("pb");
    const std::uint32_t noOfBodies = 2 + shape[0] % 4;
    const auto bodyId = [](std::uint32_t i) { return (i % 2 == 0 ? "bx" : "by") + std::to_string(i); };
    for (std::uint32_t i = 0; i < noOfBodies; ++i) {
        const std::string parts[] = {"", "pa", "pb"};
        builder.addBody(bodyId(i), parts[shape[1 + i] % 3]);
    }
    for (std::uint32_t i = 0; i + 6 < shape.size(); ++i) {
        const std::uint32_t value = shape[6 + i];
        const std::uint32_t first = value % noOfBodies;
        const std::uint32_t second = value / 8 % (noOfBodies + 1);
        const std::string id = (i % 2 == 0 ? "fx" : "fy") + std::to_string(i);
        if (second == noOfBodies) {
            builder.addFace(id, {bodyId(first), "", {}});
        } else {
            builder.addFace(id, {bodyId(first), "", {}}, gtm::bundled::TopologyBuilder::Side{bodyId(second), "", {}});
        }
    }
    return builder.build();
}

class Machine {
public:
    explicit Machine(const std::vector<std::uint32_t>& shape)
        : m_model(makeModel(shape)), m_real(m_model->topology(), "", 0), m_plain(*m_model)
    {
        m_plain.defaultInterior.name = "default interior";
        m_plain.defaultInterior.real = m_real.defaultInterior();
        for (const auto& list : {std::vector<gtm::Region*>(m_model->parts().begin(), m_model->parts().end()),
                                 std::vector<gtm::Region*>(m_model->bodies().begin(), m_model->bodies().end()),
                                 std::vector<gtm::Region*>(m_model->faces().begin(), m_model->faces().end()),
                                 std::vector<gtm::Region*>(m_model->faceUses().begin(), m_model->faceUses().end())}) {
            m_regions.insert(m_regions.end(), list.begin(), list.end());
        }
    }

    void apply(const Step& step)
    {
        m_step = step;
        m_at = 0;
        switch (next() % 20) {
        case 0:
        case 1:
        case 2:
            return createInterior();
        case 3:
        case 4:
        case 5:
        case 6:
            return createBoundary();
        case 7:
        case 8:
            return createInterface();
        case 9:
            return relocateInterior();
        case 10:
            return relocateBoundary();
        case 11:
            return relocateInterface();
        case 12:
            return removeRegions();
        case 13:
            return destroySomething();
        case 14:
        case 15:
            return changeMask();
        case 16:
            return switchDefaultInterior();
        case 17:
            return switchDefaultBoundary();
        case 18:
            return renameSomething();
        default:
            return next() % 8 == 0 ? clear() : changeMask();
        }
    }

    void compareAll()
    {
        std::vector<gtm::Interior*> interiors;
        for (const auto& interior : m_plain.interiors) {
            interiors.push_back(interior->real);
            compare(*interior);
        }
        if (m_plain.isDefaultActive) {
            interiors.push_back(m_plain.defaultInterior.real);
        }
        compare(m_plain.defaultInterior);
        RC_ASSERT(m_real.interiors() == interiors);
        for (const auto& boundary : m_plain.boundaries) {
            compare(*boundary);
        }
        std::vector<gtm::Interface*> interfaces;
        for (const auto& interface : m_plain.interfaces) {
            interfaces.push_back(interface->real);
            RC_ASSERT(interface->real->state() == m_plain.state(*interface));
            RC_ASSERT(interface->real->name() == interface->name);
        }
        RC_ASSERT(m_real.interfaces() == interfaces);
        compareMask();
    }

private:
    using Interior = bruteforce::Interior;
    using Boundary = bruteforce::Boundary;
    using Interface = bruteforce::Interface;
    using Term = bruteforce::Term;
    using Location = bruteforce::Location;

    std::uint32_t next() { return m_at < m_step.size() ? m_step[m_at++] : 0; }

    template <class List>
    auto pick(List& list) -> decltype(&*list.front())
    {
        return list.empty() ? nullptr : std::next(list.begin(), next() % list.size())->get();
    }

    /// An interior, at times the default one.
    Interior& pickInterior()
    {
        Interior* interior = next() % 4 == 0 ? nullptr : pick(m_plain.interiors);
        return interior == nullptr ? m_plain.defaultInterior : *interior;
    }

    /// The `kind` of regions fits where the location is used, most of the time.
    gtm::Region* pickRegion(bool surface)
    {
        const std::size_t noOfLarge = m_model->parts().size() + m_model->bodies().size();
        const std::size_t noOfSmall = m_regions.size() - noOfLarge;
        const std::uint32_t choice = next();
        const bool wantsSmall = (choice % 8 == 0) != surface && noOfSmall > 0;
        return wantsSmall ? m_regions[noOfLarge + choice / 8 % noOfSmall] : m_regions[choice / 8 % noOfLarge];
    }

    Location makeLocation(bool surface)
    {
        Location location;
        location.isList = next() % 3 == 0;
        const std::size_t noOfTerms = 1 + next() % 3;
        for (std::size_t i = 0; i < noOfTerms; ++i) {
            Term term;
            const std::uint32_t choice = next() % 16;
            if (location.isList || choice < 11) {
                term.kind = Term::Kind::Region;
                term.region = pickRegion(surface);
            } else if (choice < 15) {
                const std::string prefixes[] = {"", "b", "bx", "by", "f", "fx", "fy", "pa", "none"};
                term.kind = Term::Kind::Prefix;
                term.prefix = prefixes[next() % 9];
            }
            term.takesAway = !location.isList && next() % 4 == 0;
            location.terms.push_back(term);
        }
        return location;
    }

    void createInterior()
    {
        auto made = std::make_unique<Interior>();
        made->location = makeLocation(false);
        made->name = "interior " + std::to_string(next() % 3);
        const bool enforce = next() % 2 == 0;
        const auto [real, state] = made->location.isList
                                       ? m_real.createInterior(made->name, made->location.regions(), false, enforce)
                                       : m_real.createInterior(made->name, made->location.text(), false, enforce);

        const auto expected = m_plain.placement(*made);
        RC_ASSERT(state == expected);
        RC_ASSERT((real == nullptr) == (enforce && expected != gtm::Interior::State::Valid));
        RC_ASSERT((m_model->lastRefusal() == "") == (real != nullptr));
        if (real != nullptr) {
            made->real = real;
            m_plain.interiors.push_back(std::move(made));
        }
    }

    void createBoundary()
    {
        auto made = std::make_unique<Boundary>();
        made->interior = &pickInterior();
        made->location = makeLocation(true);
        made->name = "boundary " + std::to_string(next() % 3);
        const bool enforce = next() % 2 == 0;
        const auto [real, state] =
            made->location.isList ? made->interior->real->createBoundary(made->name, made->location.regions(), enforce)
                                  : made->interior->real->createBoundary(made->name, made->location.text(), enforce);

        const auto expected = m_plain.state(*made);
        RC_ASSERT(state == expected);
        RC_ASSERT((real == nullptr) == (enforce && expected != gtm::Boundary::State::Valid));
        RC_ASSERT((m_model->lastRefusal() == "") == (real != nullptr));
        if (real != nullptr) {
            made->real = real;
            m_plain.boundaries.push_back(std::move(made));
        }
    }

    /// Chooses one or two boundaries a side, now and then none.
    Interface makeInterface()
    {
        Interface made;
        for (auto* side : {&made.first, &made.second}) {
            const std::uint32_t noOf = next() % 8;
            for (std::uint32_t i = 0; i < (noOf == 0 ? 0U : noOf < 6 ? 1U : 2U); ++i) {
                if (Boundary* boundary = pick(m_plain.boundaries)) {
                    side->insert(boundary);
                }
            }
        }
        return made;
    }

    static gtm::Interface::Sides realSides(const Interface& interface)
    {
        gtm::Interface::Sides sides;
        for (const Boundary* boundary : interface.first) {
            sides.first.insert(boundary->real);
        }
        for (const Boundary* boundary : interface.second) {
            sides.second.insert(boundary->real);
        }
        return sides;
    }

    void createInterface()
    {
        auto made = std::make_unique<Interface>(makeInterface());
        made->name = "interface " + std::to_string(next() % 3);
        const bool enforce = next() % 2 == 0;
        const auto sides = realSides(*made);
        const auto [real, state] = m_real.createInterface(made->name, sides.first, sides.second, enforce);

        const auto expected = m_plain.state(*made);
        RC_ASSERT(state == expected);
        RC_ASSERT((real == nullptr) == (enforce && expected != gtm::Interface::State::Valid));
        if (real != nullptr) {
            RC_ASSERT(real->sides() == sides);
            made->real = real;
            m_plain.interfaces.push_back(std::move(made));
        }
    }

    void relocateInterior()
    {
        Interior& interior = pickInterior();
        const Location location = makeLocation(false);
        const bool enforce = next() % 2 == 0;
        const auto state = location.isList ? interior.real->relocate(location.regions(), enforce)
                                           : interior.real->relocate(location.text(), enforce);
        if (interior.isDefault) {
            RC_ASSERT(state == gtm::Interior::State::Inconsistent);
            return;
        }
        const Location before = std::exchange(interior.location, location);
        const auto expected = m_plain.placement(interior);
        RC_ASSERT(state == expected);
        if (enforce && expected != gtm::Interior::State::Valid) {
            interior.location = before;
        }
    }

    void relocateBoundary()
    {
        Boundary* boundary = pick(m_plain.boundaries);
        if (boundary == nullptr) {
            return;
        }
        const Location location = makeLocation(true);
        const bool enforce = next() % 2 == 0;
        const auto state = location.isList ? boundary->real->relocate(location.regions(), enforce)
                                           : boundary->real->relocate(location.text(), enforce);

        const Location before = std::exchange(boundary->location, location);
        const auto expected = m_plain.state(*boundary);
        RC_ASSERT(state == expected);
        if (enforce && expected != gtm::Boundary::State::Valid) {
            boundary->location = before;
        }
    }

    void relocateInterface()
    {
        Interface* interface = pick(m_plain.interfaces);
        if (interface == nullptr) {
            return;
        }
        Interface moved = makeInterface();
        const bool enforce = next() % 2 == 0;
        const auto before = interface->real->sides();
        const auto state = interface->real->relocate(realSides(moved), enforce);

        const auto expected = m_plain.state(moved);
        RC_ASSERT(state == expected);
        if (enforce && expected != gtm::Interface::State::Valid) {
            RC_ASSERT(interface->real->sides() == before);
            return;
        }
        interface->first = moved.first;
        interface->second = moved.second;
        RC_ASSERT(interface->real->sides() == realSides(*interface));
    }

    void removeRegions()
    {
        const bool surface = next() % 2 == 0;
        std::vector<gtm::Region*> regions{pickRegion(surface), pickRegion(surface)};
        if (next() % 2 == 0) {
            Interior& interior = pickInterior();
            const Location left = interior.isDefault ? Location() : m_plain.without(interior, regions);
            const bool isChanged = interior.real->remove(regions);
            RC_ASSERT(isChanged == (left.text() != interior.location.text()));
            interior.location = left;
        } else if (Boundary* boundary = pick(m_plain.boundaries)) {
            const Location left = m_plain.without(*boundary, regions);
            const bool isChanged = boundary->real->remove(regions);
            RC_ASSERT(isChanged == (left.text() != boundary->location.text()));
            boundary->location = left;
        }
    }

    void destroySomething()
    {
        switch (next() % 4) {
        case 0:
            if (Interior* interior = pick(m_plain.interiors)) {
                interior->real->destroy();
                forgetBoundaries([interior](const Boundary& boundary) { return boundary.interior == interior; });
                m_plain.interiors.remove_if([interior](const auto& one) { return one.get() == interior; });
            }
            return;
        case 1:
        case 2:
            if (Boundary* boundary = pick(m_plain.boundaries)) {
                boundary->real->destroy();
                forgetBoundaries([boundary](const Boundary& one) { return &one == boundary; });
            }
            return;
        default:
            if (Interface* interface = pick(m_plain.interfaces)) {
                interface->real->destroy();
                m_plain.interfaces.remove_if([interface](const auto& one) { return one.get() == interface; });
            }
        }
    }

    template <class IsGone>
    void forgetBoundaries(IsGone isGone)
    {
        m_plain.interfaces.remove_if([&isGone](const auto& interface) {
            const auto isOnIt = [&isGone](const Boundary* boundary) { return isGone(*boundary); };
            return std::any_of(interface->first.begin(), interface->first.end(), isOnIt) ||
                   std::any_of(interface->second.begin(), interface->second.end(), isOnIt);
        });
        m_plain.boundaries.remove_if([&isGone](const auto& boundary) { return isGone(*boundary); });
    }

    void changeMask()
    {
        std::vector<gtm::Body*> bodies;
        for (gtm::Body* body : m_model->bodies()) {
            if (next() % 2 == 0) {
                bodies.push_back(body);
            }
        }
        switch (next() % 3) {
        case 0:
            m_real.mask(bodies);
            m_plain.masked.insert(bodies.begin(), bodies.end());
            return;
        case 1:
            m_real.unmask(bodies);
            for (gtm::Body* body : bodies) {
                m_plain.masked.erase(body);
            }
            return;
        default:
            m_real.setMaskedBodies(bodies);
            m_plain.masked = {bodies.begin(), bodies.end()};
        }
    }

    void switchDefaultInterior()
    {
        m_plain.isDefaultActive = next() % 2 == 0;
        m_real.activateDefaultInterior(m_plain.isDefaultActive);
    }

    void switchDefaultBoundary()
    {
        Interior& interior = pickInterior();
        interior.hasDefaultBoundary = next() % 2 == 0;
        interior.real->activateDefaultBoundary(interior.hasDefaultBoundary);
    }

    void renameSomething()
    {
        Interior& interior = pickInterior();
        interior.name = "renamed " + std::to_string(next() % 3);
        RC_ASSERT(interior.real->rename(interior.name) == interior.name);
        if (Boundary* boundary = pick(m_plain.boundaries)) {
            boundary->name = interior.name;
            RC_ASSERT(boundary->real->rename(boundary->name) == boundary->name);
        }
    }

    void clear()
    {
        m_real.clear();
        m_plain.interfaces.clear();
        m_plain.boundaries.clear();
        m_plain.interiors.clear();
        m_plain.masked.clear();
        m_plain.isDefaultActive = false;
        m_plain.defaultInterior.hasDefaultBoundary = false;
    }

    void compare(const Interior& interior)
    {
        const gtm::Interior& real = *interior.real;
        RC_ASSERT(real.name() == interior.name);
        RC_ASSERT(ids(real.bodies()) == ids(m_plain.bodies(interior)));
        RC_ASSERT(ids(real.internalFaces()) == ids(m_plain.internalFaces(interior)));
        RC_ASSERT(ids(real.unusedInternalFaces()) == ids(m_plain.unusedInternalFaces(interior)));
        RC_ASSERT(real.overlappingInteriors() == m_plain.overlapping(interior));
        RC_ASSERT(real.state() == m_plain.state(interior));
        const auto unclaimed = ids(m_plain.unclaimed(interior));
        RC_ASSERT(ids(real.unusedFaceUses()) == (interior.hasDefaultBoundary ? std::vector<std::string>() : unclaimed));
        if (!interior.isDefault) {
            RC_ASSERT(real.location()->locationString(false) == interior.location.text());
        }
        for (const auto& other : m_plain.interiors) {
            RC_ASSERT(real.overlap(other->real).size() == sharedBodies(interior, *other));
        }
        std::vector<gtm::Boundary*> boundaries;
        for (const Boundary* boundary : m_plain.boundariesOf(interior)) {
            boundaries.push_back(boundary->real);
        }
        Boundary rest{
            const_cast<Interior*>(&interior), true, {}, real.defaultBoundary()->name(), real.defaultBoundary()};
        if (interior.hasDefaultBoundary) {
            boundaries.push_back(rest.real);
        }
        RC_ASSERT(real.boundaries() == boundaries);
        compare(rest);
    }

    std::size_t sharedBodies(const Interior& a, const Interior& b) const
    {
        const auto bodies = m_plain.bodies(a);
        return static_cast<std::size_t>(
            std::count_if(bodies.begin(), bodies.end(), [&](const gtm::Body* body) { return m_plain.has(b, body); }));
    }

    void compare(const Boundary& boundary)
    {
        const gtm::Boundary& real = *boundary.real;
        const auto faceUses = m_plain.faceUses(boundary);
        RC_ASSERT(real.name() == boundary.name);
        RC_ASSERT(real.interior() == boundary.interior->real);
        RC_ASSERT(ids(real.faceUses()) == ids(faceUses));
        RC_ASSERT(real.overlappingBoundaries() == m_plain.overlapping(boundary));
        RC_ASSERT(real.isInternal() == m_plain.isInternal(boundary));
        RC_ASSERT(real.pair() == m_plain.pair(boundary));
        RC_ASSERT(real.state() == m_plain.state(boundary));
        RC_ASSERT(real.unresolvableNames().empty() == (real.state() != gtm::Boundary::State::Unresolvable));
        if (!boundary.isDefault) {
            RC_ASSERT(real.location()->locationString(false) == boundary.location.text());
        }
        for (const auto& other : m_plain.boundaries) {
            const auto its = m_plain.faceUses(*other);
            const auto noOfShared = std::count_if(faceUses.begin(), faceUses.end(), [&its](gtm::FaceUse* faceUse) {
                return std::find(its.begin(), its.end(), faceUse) != its.end();
            });
            RC_ASSERT(real.overlap(other->real).size() == static_cast<std::size_t>(noOfShared));
        }
    }

    void compareMask()
    {
        std::vector<std::string> masked;
        std::vector<std::string> unused;
        for (gtm::Body* body : m_model->bodies()) {
            const bool isMasked = m_plain.masked.count(body) != 0;
            RC_ASSERT(m_real.isMasked(body) == isMasked);
            if (isMasked) {
                masked.push_back(body->id());
            }
            const bool isUsed =
                m_plain.isDefaultActive || std::any_of(m_plain.interiors.begin(), m_plain.interiors.end(),
                                                       [&](const auto& one) { return m_plain.has(*one, body); });
            if (!isMasked && !isUsed) {
                unused.push_back(body->id());
            }
        }
        RC_ASSERT(ids(m_real.maskedBodies()) == masked);
        RC_ASSERT(ids(m_real.unusedBodies()) == unused);
        RC_ASSERT(m_real.maskedFaces().size() + m_real.unmaskedFaces().size() == m_model->faces().size());
        RC_ASSERT(m_real.maskedFaceUses().size() + m_real.unmaskedFaceUses().size() == m_model->faceUses().size());
    }

    std::unique_ptr<gtm::bundled::LocationModel> m_model;
    gtm::VirtualTopology m_real;
    bruteforce::World m_plain;
    std::vector<gtm::Region*> m_regions; ///< parts and bodies first
    Step m_step;
    std::size_t m_at = 0;
};

TEST(AgainstBruteForce, everySequenceOfChangesGivesTheSameAnswers)
{
    const auto number = rc::gen::inRange<std::uint32_t>(0, 1000);
    const bool isSame = rc::check([&] {
        const auto shape = *rc::gen::container<std::vector<std::uint32_t>>(14, number);
        const auto steps = *rc::gen::container<std::vector<Step>>(rc::gen::container<Step>(16, number));
        Machine machine(shape);
        for (const Step& step : steps) {
            machine.apply(step);
            machine.compareAll();
        }
    });
    EXPECT_TRUE(isSame);
}

} // namespace
