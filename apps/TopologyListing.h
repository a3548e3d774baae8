#pragma once

namespace gtm::bundled {
class LocationModel;
}

namespace physics::apps {

class Output;

/// Prints the parts, bodies, faces and face uses of a location model with their solver zones, each kind in
/// the order of the topology.
void listTopology(const gtm::bundled::LocationModel& model, Output& output);

} // namespace physics::apps
