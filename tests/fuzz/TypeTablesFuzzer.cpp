// Any section of type tables: it is read to its end or to the end of the text, and what was read is written
// and read again as the same.

#include "physics/TypeManager.h"
#include "physics/saved/TextReader.h"
#include "physics/saved/TextWriter.h"
#include "tests/fuzz/Require.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

using physics::TextReader;
using physics::TextWriter;
using physics::TypeManager;

namespace {

std::string written(const TypeManager& types)
{
    TextWriter writer;
    writer.typeTables(types);
    return writer.take();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(data, data + size);
    TextReader reader(text);
    TypeManager types;
    reader.typeTables(types);
    types.allowedBoundaryTypes();
    std::ostringstream report;
    types.dump(report);

    const std::string once = written(types);
    TextReader again(once);
    TypeManager others;
    again.typeTables(others);
    require(!again.hasFailed(), "what was written can be read");
    require(written(others) == once, "what was written comes back");
    return 0;
}
