#pragma once

#include "gtm/LocationModel.h"
#include "tests/gtm/ContractFixture.h"

#include <memory>
#include <string>

namespace physics {

/// A small geometry on the location model with which the test program is linked. Kept texts lie on it, so
/// nothing of it may ever change:
///
///     inlet | left | middle | right | outlet      outer wall | far side | skin | loose
///
/// `left` and `right` make the part "rotor", `far side` the part "stator"; "baffle" lies inside left.
/// Zones: 21 left, 22 right, 31 inlet, 41 both sides of the baffle.
class Geometry {
public:
    Geometry();

    const gtm::Model* model() const { return m_model->model(); }
    gtm::Region* region(const std::string& id) const { return model()->topology()->findRegionById(id); }
    gtm::Body* body(const std::string& id) const { return model()->topology()->findBodyById(id); }

private:
    std::unique_ptr<contract::ContractModel> m_model;
};

} // namespace physics
