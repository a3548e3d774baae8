#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "physics/Boundary.h"
#include "physics/Physics.h"
#include "physics/Volume.h"

// A set-up is made, saved and restored through the installed libraries.
int main()
{
    gtm::bundled::TopologyBuilder builder;
    builder.addBody("water");
    builder.addFace("inlet", {"water", {}, {}});
    const auto geometry = builder.build();

    physics::Physics setup(geometry.get(), true);
    physics::Volume* water = setup.createVolume("water", "water", physics::VolumeType::Fluid);
    water->createBoundary("in", "inlet", physics::BoundaryType::VelocityInlet);
    const std::string text = setup.serialise();
    const bool isRestored = setup.restore(text) && setup.serialise() == text;
    return isRestored && setup.boundaries().size() == 1 && setup.boundaries().front()->fullName() == "water::in" ? 0
                                                                                                                 : 1;
}
