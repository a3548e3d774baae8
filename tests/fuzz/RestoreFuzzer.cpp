// Any text at all: either it is refused with reasons and nothing is lost, or what comes back is sound, and
// saved and restored again it stays the same.

#include "physics/Physics.h"
#include "physics/Volume.h"
#include "tests/fuzz/Require.h"
#include "tests/physics/saved/Geometry.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

using physics::Physics;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const physics::Geometry geometry;
    const std::string text(data, data + size);

    Physics setUp(geometry.model(), false);
    setUp.createVolume("left", std::string("left"), physics::VolumeType::Fluid);
    setUp.createDefaultVolume("rest", physics::VolumeType::Solid)->createDefaultBoundary("skin");
    const std::string before = setUp.serialise();

    const std::vector<std::string> complaints = setUp.checkSerialised(text);
    const bool isAccepted = setUp.restore(text);
    const std::string after = setUp.serialise();

    require(isAccepted == complaints.empty(), "a text is refused exactly when there is a reason");
    require(isAccepted || after == before, "a refused text changes nothing");
    require(setUp.restore(after), "what was saved is accepted");
    require(setUp.serialise() == after, "what was saved comes back");
    setUp.validate(true, false);
    return 0;
}
