#pragma once

#include "tests/importers/cgns/CgnsFileMaker.h"

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace cgnstests {

/// A CGNS file with something wrong, and what is said about it.
struct Fault {
    std::string name;
    std::function<void(CgnsFileMaker&)> make;

    /// The whole refusal, without the name of the file, or one of the notes.
    std::string said;
    bool isRefused = true;
    std::string base = "Base"; ///< empty for a file without one
};

void PrintTo(const Fault& fault, std::ostream* stream);

const std::vector<Fault>& faults();

} // namespace cgnstests
