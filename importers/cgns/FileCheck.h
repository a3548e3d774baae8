#pragma once

#include <filesystem>

namespace gtm::bundled {

/// Throws `CgnsError`, without the name of the file, for what the file library must not be given: it neither
/// tells apart what is no file, nor survives every damage.
void checkFile(const std::filesystem::path& file);

} // namespace gtm::bundled
