#pragma once

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "tests/scripted/World.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace physics {

/// Two volumes in contact, on the scripted location model:
///
///     inlet -[ hot (body left)  | upper, lower |  cold (body right) ]- outlet
///
/// `hotWall` and `coldWall` are the two sides of the contact; nothing joins them yet.
class ContactCase : public testing::Test {
protected:
    scripted::World world;
    gtm::Body* left = world.body("left");
    gtm::Body* right = world.body("right");
    scripted::FaceWithUses inletFace = world.face("inlet", left);
    scripted::FaceWithUses upper = world.face("upper", left, right);
    scripted::FaceWithUses lower = world.face("lower", left, right);
    scripted::FaceWithUses outletFace = world.face("outlet", right);
    Physics physics{world.model(), false};
    Model* model = physics.createModel();
    Volume* hot = physics.createVolume("hot", std::string("left"), VolumeType::Fluid);
    Volume* cold = physics.createVolume("cold", std::string("right"), VolumeType::Solid);
    Boundary* hotWall = hot->createBoundary("hot wall", std::string("upper@left, lower@left"), BoundaryType::Wall);
    Boundary* coldWall = cold->createBoundary("cold wall", std::string("upper@right, lower@right"), BoundaryType::Wall);
    Boundary* inlet = hot->createBoundary("inlet", std::string("inlet@left"), BoundaryType::Wall);
    Boundary* outlet = cold->createBoundary("outlet", std::string("outlet@right"), BoundaryType::Wall);

    Interface* join(Boundary* first, Boundary* second, const std::string& name = "contact",
                    InterfaceType type = InterfaceType::Wall, Model* owner = nullptr)
    {
        return physics.createInterface(name, first, second, type, owner);
    }

    /// The id that a settings object gets now; it is drawn.
    int drawSettingsId() { return model->settings(hotWall->patch(nullptr), SettingsType(7))->id(); }

    /// The id that a patch gets now; it is drawn, as the own patch of a boundary that ends at once.
    int drawPatchId()
    {
        Boundary* boundary = hot->createBoundary("for its patch only", std::string());
        const int id = boundary->patch(nullptr)->id();
        boundary->destroy();
        return id;
    }
};

/// Another set-up, whose objects the first one must refuse.
struct Stranger {
    scripted::World world;
    gtm::Body* body = world.body("body");
    scripted::FaceWithUses face = world.face("face", body);
    Physics physics{world.model(), false};
    Model* model = physics.createModel();
    Volume* volume = physics.createVolume("volume", std::string("body"), VolumeType::Fluid);
    Boundary* boundary = volume->createBoundary("boundary", std::string("face@body"));
};

using Boundaries = std::vector<Boundary*>;
using Bundles = std::vector<ThreadBundle*>;
using Ids = std::vector<int>;
using Interfaces = std::vector<Interface*>;
using Patches = std::vector<BoundaryPatch*>;
using SettingsList = std::vector<Settings*>;
using Volumes = std::vector<Volume*>;

} // namespace physics
