#pragma once

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/Volume.h"
#include "tests/scripted/World.h"

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>
#include <string>
#include <vector>

/// Switches on the messages about what the location model refuses. The library has no setter for that:
/// the switch belongs to a saved text.
void reportCreationFailures(physics::Physics& physics);

/// The counters from which ids are drawn; reading back a saved text can turn them back.
int& volumeIdCounter();
int& boundaryIdCounter();
int& interfaceIdCounter();
int& modelIdCounter();
int& patchIdCounter();
int& settingsIdCounter();

/// What is written to standard output as long as this lives.
class PrintedText {
public:
    PrintedText() : m_before(std::cout.rdbuf(m_text.rdbuf())) {}
    ~PrintedText() { std::cout.rdbuf(m_before); }
    PrintedText(const PrintedText&) = delete;
    PrintedText& operator=(const PrintedText&) = delete;

    std::string text() const { return m_text.str(); }

private:
    std::ostringstream m_text;
    std::streambuf* m_before;
};

/// A set-up over a row of bodies on the scripted location model:
///
///     inlet | left | middle | right | outlet      far     loose
///
/// `left` and `right` make the part "rotor", `far` the part "stator"; the part "spare" has no body, and
/// `loose` is in no part. The face "middle" lies between left and right, "casing" around far.
class PhysicsCase : public testing::Test {
protected:
    scripted::World world;
    gtm::Part* rotor = world.part("rotor");
    gtm::Part* stator = world.part("stator");
    gtm::Part* spare = world.part("spare");
    gtm::Body* left = world.body("left", rotor);
    gtm::Body* right = world.body("right", rotor);
    gtm::Body* far = world.body("far", stator);
    gtm::Body* loose = world.body("loose");
    scripted::FaceWithUses inlet = world.face("inlet", left);
    scripted::FaceWithUses middle = world.face("middle", left, right);
    scripted::FaceWithUses outlet = world.face("outlet", right);
    scripted::FaceWithUses casing = world.face("casing", far);
    physics::Physics physics{world.model(), true};

    physics::Volume* volume(const std::string& name, const std::string& location = "left",
                            physics::VolumeType type = physics::VolumeType::Fluid)
    {
        return physics.createVolume(name, location, type);
    }

    physics::Interface* interface(const std::string& name, physics::Boundary* first, physics::Boundary* second,
                                  physics::InterfaceType type = physics::InterfaceType::Interior)
    {
        return physics.createInterface(name, first, second, type);
    }

    /// The changes asked of the location model since the last question, or since the beginning.
    std::vector<std::string> calls() { return world.takeCalls(); }
};

using Calls = std::vector<std::string>;
