#include "tests/golden/Golden.h"

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string_view>

namespace golden {
namespace {

testing::AssertionResult firstDifference(const std::string& output, const std::string& expected,
                                         const std::filesystem::path& file)
{
    std::istringstream actualLines(output);
    std::istringstream expectedLines(expected);
    for (std::size_t number = 1;; ++number) {
        std::string actual;
        std::string wanted;
        const bool hasActual = static_cast<bool>(std::getline(actualLines, actual));
        const bool hasWanted = static_cast<bool>(std::getline(expectedLines, wanted));
        if (hasActual != hasWanted || actual != wanted || !hasActual) {
            return testing::AssertionFailure() << "differs from " << file << ", first in line " << number
                                               << "\n  expected: " << (hasWanted ? wanted : "(end of text)")
                                               << "\n  read:     " << (hasActual ? actual : "(end of text)");
        }
    }
}

} // namespace

testing::AssertionResult matches(const std::string& output, const std::string& name)
{
    const std::filesystem::path file = std::filesystem::path(PHYSICS_SOURCE_DIR) / "tests/golden" / name;
    const char* rewrite = std::getenv("PHYSICS_REWRITE_GOLDEN");
    if (rewrite != nullptr && std::string_view(rewrite) == "1") {
        std::ofstream(file, std::ios::binary) << output;
        return testing::AssertionFailure() << "rewrote " << file << "; read it, then run again without the switch";
    }
    std::ifstream stream(file, std::ios::binary);
    const std::string expected{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream.is_open()) {
        return testing::AssertionFailure() << "there is no " << file;
    }
    return output == expected ? testing::AssertionSuccess() : firstDifference(output, expected, file);
}

} // namespace golden
