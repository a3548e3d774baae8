// A set-up on a geometry of the host's own kernel.

#include "examples/own-kernel/Kernel.h"
#include "examples/own-kernel/Topology.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"

#include <iostream>

int main()
{
    kernel::Geometry geometry;
    geometry.solids = {{"water", "", {1}}, {"pipe", "", {2}}};
    geometry.surfaces = {{"inlet", 0, {}, {10}, {}},
                         {"outlet", 0, {}, {11}, {}},
                         {"bore", 0, 1, {12}, {-12}},
                         {"skin", 1, {}, {13}, {}}};
    const own::Model model(geometry); // lives longer than the set-up

    physics::Physics setup(&model, true);
    physics::Volume* water = setup.createVolume("water", "water", physics::VolumeType::Fluid);
    water->createBoundary("in", "inlet", physics::BoundaryType::VelocityInlet);
    water->createBoundary("out", "outlet", physics::BoundaryType::PressureOutlet);
    physics::Boundary* wetted = water->createBoundary("wetted", "bore");
    physics::Volume* pipe = setup.createVolume("pipe", "pipe", physics::VolumeType::Solid);
    physics::Boundary* inside = pipe->createBoundary("inside", "bore");
    pipe->createDefaultBoundary("outside");
    setup.createInterface("heat", wetted, inside, physics::InterfaceType::Wall);

    for (const physics::Boundary* boundary : setup.boundaries()) {
        std::cout << boundary->fullName() << ": " << displayName(boundary->type()) << ", zones";
        for (const int zone : boundary->zoneIds())
            std::cout << ' ' << zone;
        std::cout << '\n';
    }
    std::cout << (setup.isValid(false) ? "valid" : "not valid") << '\n';
    return setup.isValid(false) ? 0 : 1;
}
