// Any text at all as a topology file: it is refused with a sentence that names it, or what was read is written and
// read again as the same.

#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "locationmodel/TopologyFile.h"
#include "tests/fuzz/Require.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

using gtm::bundled::LocationModel;
using gtm::bundled::readTopologyText;
using gtm::bundled::TopologyError;
using gtm::bundled::writeTopology;

namespace {

/// Null when the text is refused.
std::unique_ptr<LocationModel> read(const std::string& text)
{
    try {
        return readTopologyText(text, "fuzz.json");
    } catch (const TopologyError& error) {
        require(std::string(error.what()).rfind("fuzz.json", 0) == 0, "a refusal names the file");
        return nullptr;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::unique_ptr<LocationModel> model = read(std::string(data, data + size));
    if (!model) {
        return 0;
    }
    const std::string once = writeTopology(*model);
    const std::unique_ptr<LocationModel> again = read(once);
    require(again != nullptr, "what was written can be read");
    require(writeTopology(*again) == once, "what was written comes back");
    return 0;
}
