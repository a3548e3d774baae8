#pragma once

#include "locationmodel/LocationModel.h"
#include "physics/Physics.h"
#include "physics/TypeManager.h"
#include "python/bindings/Owner.h"

#include <memory>
#include <utility>

namespace physics::python {

/// What Python knows as a `LocationModel`.
class Geometry final : public Owner {
public:
    explicit Geometry(std::unique_ptr<gtm::bundled::LocationModel> model) : m_model(std::move(model)) {}

    gtm::bundled::LocationModel& object() const { return *m_model; }
    Geometry& owner() { return *this; }
    Geometry& geometry() { return *this; }

private:
    const std::unique_ptr<gtm::bundled::LocationModel> m_model;
};

/// What Python knows as a `TypeManager`.
class TypeTables {
public:
    TypeManager& object() { return m_tables; }
    TypeTables& owner() { return *this; }

private:
    TypeManager m_tables;
};

/// What Python knows as a `Physics`: the set-up, with the location model that has to outlive it.
class SetUp final : public Owner {
public:
    SetUp(std::shared_ptr<Geometry> geometry, bool enforceRestrictions)
        : m_geometry(std::move(geometry)), m_physics(&m_geometry->object(), enforceRestrictions)
    {}

    Physics& object() { return m_physics; }
    SetUp& owner() { return *this; }
    Geometry& geometry() const { return *m_geometry; }

    /// Whether a creation that the location model refuses is an error at the moment, for the blocks that ask for it.
    bool raisesRefusals() const { return m_noOfBuildings > 0; }
    void enterBuilding() { ++m_noOfBuildings; }
    void leaveBuilding() { --m_noOfBuildings; }

private:
    const std::shared_ptr<Geometry> m_geometry;
    Physics m_physics;
    int m_noOfBuildings = 0;
};

} // namespace physics::python
