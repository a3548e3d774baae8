#include "tests/physics/saved/Geometry.h"

namespace physics {
namespace {

contract::TopologyDescription description()
{
    contract::TopologyDescription topology;
    topology.parts = {"rotor", "stator"};
    topology.bodies = {
        {"left", "rotor", {21}}, {"right", "rotor", {22}}, {"far side", "stator", {}}, {"loose", "", {}}};
    topology.faces = {
        {"inlet", "left", "", {{31, 0}}, {}},   {"baffle", "left", "left", {{41, 0}}, {{41, 1}}},
        {"middle", "left", "right", {}, {}},    {"outlet", "right", "", {}, {}},
        {"outer wall", "far side", "", {}, {}}, {"skin", "far side", "loose", {}, {}},
    };
    return topology;
}

} // namespace

Geometry::Geometry() : m_model(contract::makeContractModel(description())) {}

} // namespace physics
