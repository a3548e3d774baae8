#pragma once

#include "physics/Physics.h"
#include "tests/physics/ReferenceModel.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

/// Says that library and reference do not agree; a history ends there.
class Disagreement : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

template <class Actual, class Expected>
void agree(const std::string& what, const Actual& actual, const Expected& expected)
{
    if (!(actual == expected))
        throw Disagreement(what + " is " + testing::PrintToString(actual) + ", not " +
                           testing::PrintToString(expected));
}

/// Asks every question of the library about every object and compares the answers with the reference. Ids
/// stand for objects: none is listed, found or pointed at but those that live.
class Comparison {
public:
    /// `ended` are interfaces that a host still points at; `bundles` names the thread bundles.
    Comparison(const physics::Physics& physics, const reference::SetUp& reference, reference::Counters before,
               const std::vector<physics::Interface*>& ended,
               const std::map<const physics::ThreadBundle*, reference::Id>& bundles)
        : m_physics(physics), m_reference(reference), m_before(before), m_ended(ended), m_bundles(bundles)
    {}

    /// Throws the first `Disagreement`.
    void check() const;

private:
    void checkModel(reference::Id id, const physics::Model& model) const;
    void checkVolume(reference::Id id, const physics::Volume& volume) const;
    void checkBoundary(reference::Id id, const physics::Boundary& boundary) const;
    void checkPatch(reference::Id id, const physics::BoundaryPatch& patch) const;
    void checkInterface(reference::Id id, const physics::Interface& interface) const;
    void checkEnded(const physics::Interface& interface) const;
    void checkSettings(reference::Id id, const physics::Settings& settings) const;
    void checkBundle(const physics::ThreadBundle& bundle, reference::Id key) const;
    void checkLists() const;
    void checkThreadsAndZones() const;
    void checkActivityAndMask() const;
    void checkLocationModel() const;

    reference::Id keyOf(const physics::ThreadBundle* bundle) const;

    const physics::Physics& m_physics;
    const reference::SetUp& m_reference;
    const reference::Counters m_before;
    const std::vector<physics::Interface*>& m_ended;
    const std::map<const physics::ThreadBundle*, reference::Id>& m_bundles;
};
