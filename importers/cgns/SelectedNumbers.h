#pragma once

#include "importers/cgns/CgnsDescription.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace gtm::bundled {

/// The numbers that a selection of an unstructured zone stands for, in ascending order, each once. Throws
/// `CgnsError`, which begins with `place` and calls the things `what`, when they are not within 1 and `last`, or
/// when a range has more of them than the `noOfThings` that there are: a damaged one could exhaust the memory.
std::vector<std::int64_t> selectedNumbers(const CgnsDescription::Selection& selection, std::int64_t last,
                                          std::size_t noOfThings, const char* what, const std::string& place);

} // namespace gtm::bundled
