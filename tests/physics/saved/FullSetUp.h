#pragma once

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "tests/physics/saved/Texts.h"
#include "tests/scripted/World.h"

#include <memory>
#include <string>
#include <vector>

namespace physics {

/// Two volumes that share a face, with most of what a set-up can have.
struct FullSetUp {
    FullSetUp()
    {
        left = world.body("left");
        right = world.body("right");
        world.face("shared", left, right);
        physics = std::make_unique<Physics>(world.model(), false);
        physics->restore(emptyText(0)); // so that ids begin at 1
        Model* model = physics->createModel();
        Volume* fluid = physics->createVolume("fluid", std::string("left"), VolumeType::Fluid, model);
        Volume* solid = physics->createVolume("solid", std::vector<gtm::Region*>{right}, VolumeType::Solid, model);
        Boundary* hot = fluid->createBoundary("hot", std::string("shared@left"), BoundaryType::Wall);
        Boundary* cold = solid->createBoundary("cold", std::string("shared@right"), BoundaryType::Wall);
        physics->createInterface("contact", hot, cold, InterfaceType::Wall);
        fluid->settings()->createThreadBundle(0, ThreadType::Fluid, 7, {1})->setZoneIds({5});
        hot->setShellModel(physics->createModel());
        hot->setShellType(ShellType::HeatConduction);
        hot->nonOverlappingShellSettings();
        cold->addTag(BoundaryTag::Interface);
        solid->deactivate();
        physics->maskBodies({right});
    }

    scripted::World world;
    gtm::Body* left = nullptr;
    gtm::Body* right = nullptr;
    std::unique_ptr<Physics> physics;
};

} // namespace physics
