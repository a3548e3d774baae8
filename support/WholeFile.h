#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>

namespace gtm::support {

/// What is wrong with a file: one line that names it, so that it can be shown as it is.
class FileError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The content of a file, byte by byte. Throws `FileError`.
std::string readWholeFile(const std::filesystem::path& file);

/// Gives a file a new content. Whatever happens, a crash or a full disk included, the file has the old content
/// or the new one, never a part of it: the new one is written beside it and then takes its name. Permissions
/// and symbolic links stay. A signal that asks the process to end (Ctrl-C) waits until the file is
/// whole or gone, if this thread is the one that takes it. What is no ordinary file, such as /dev/stdout, is written to
/// as it is. Throws `FileError`, and then nothing has changed and nothing is left beside the file.
void writeWholeFile(const std::filesystem::path& file, std::string_view content);

} // namespace gtm::support
