#pragma once

#include "gtm/Boundary.h"
#include "gtm/Interface.h"
#include "gtm/Interior.h"
#include "locationmodel/BodyPlacement.h"
#include "locationmodel/Reason.h"
#include "locationmodel/SurfacePlacement.h"

namespace gtm::bundled {

class BoundaryEntity;
class InteriorEntity;
class InterfaceEntity;
class Workspace;

/// The state of something that exists. When `why` is given and the state is not valid, it is told the
/// reason.
Interior::State judge(const InteriorEntity& interior, Reason* why = nullptr);
Boundary::State judge(const BoundaryEntity& boundary, Reason* why = nullptr);

/// The state that a placement has or would have. `self` is the entity to be placed there, or null when
/// it does not exist yet. A placement is never incomplete: that is a matter of the boundaries.
Interior::State judge(const BodyPlacement& placement, const InteriorEntity* self, const Workspace& workspace,
                      Reason* why);
Boundary::State judge(const SurfacePlacement& placement, const BoundaryEntity* self, const InteriorEntity& interior,
                      Reason* why);

/// The state that an interface with these sides has or would have.
Interface::State judge(const Interface::Sides& sides, Reason* why = nullptr);

/// The terms of a boundary's location that name nothing in its interior.
std::vector<UnresolvedTerm> unresolvedTerms(const SurfacePlacement& placement, const InteriorEntity& interior);

} // namespace gtm::bundled
