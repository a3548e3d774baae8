#pragma once

#include "physics/Physics.h"
#include "tests/scripted/World.h"

#include <memory>
#include <string>
#include <vector>

namespace physics::setups {

/// A set-up with the location model under it. Its ids begin at 1.
struct SetUp {
    explicit SetUp(std::string its) : name(std::move(its)) {}

    /// To be called when the geometry is complete.
    Physics& begin();

    std::string name;
    scripted::World world;
    std::unique_ptr<Physics> physics;
    Interface* ended = nullptr; // where the set-up has one
};

using Made = std::unique_ptr<SetUp>;

// Small set-ups that together take every branch of the reports.
Made empty();
Made defaults();   // default volume and boundaries, one of them empty; inherited zones
Made periodic();   // plain, translational and rotational interfaces
Made models();     // two models, domains, a shell, several patches, zones with a star, internal faces
Made inactive();   // activation groups, a masked part, masked bodies, an unused body
Made faults();     // overlaps, unresolvable names, states, types that are not allowed, a warning
Made longLists();  // lists that wrap
Made foreign();    // names that are not ASCII, or have blanks
Made leftBehind(); // a destroyed model, an ended interface, thread ids that nobody is found under
Made warnings();   // what is wrong only as long as warnings count, an empty default volume, a masked body alone
Made readBack();   // settings of patches in their interface, other default types, a bundle under another's thread id
Made gaps();       // locations and regions that are missing, an interface with several volumes on a side

std::vector<Made (*)()> all();
std::vector<Made (*)()> allWithObjects();

} // namespace physics::setups
