#include "importers/cgns/FileCheck.h"

#include "importers/cgns/CgnsReader.h"

#include <hdf5.h>

#include <charconv>
#include <cstdint>
#include <fstream>
#include <optional>
#include <string>

namespace gtm::bundled {

namespace {

void refuseWhatIsNoFile(const std::filesystem::path& file)
{
    std::error_code ignored;
    if (!std::filesystem::exists(file, ignored)) {
        throw CgnsError("there is no such file; check the name and the folder.");
    }
    if (!std::filesystem::is_regular_file(file, ignored)) {
        throw CgnsError("this is not a file but a folder or a device; name the CGNS file itself.");
    }
    if (std::filesystem::file_size(file, ignored) == 0) {
        throw CgnsError("the file is empty; export it again.");
    }
}

/// The size of an ADF file as its header tells it: the last block of 4096 bytes and the last byte in it,
/// both in hexadecimal digits. Nothing for another file.
std::optional<std::uintmax_t> sizeInHeader(const std::filesystem::path& file)
{
    constexpr std::size_t at = 146;
    std::string header(at + 12, '\0');
    std::ifstream(file, std::ios::binary).read(header.data(), static_cast<std::streamsize>(header.size()));
    if (header.find("ADF Database Version") == std::string::npos) {
        return std::nullopt;
    }
    std::uintmax_t block = 0;
    std::uintmax_t offset = 0;
    const char* digits = header.data() + at;
    std::from_chars(digits, digits + 8, block, 16);
    std::from_chars(digits + 8, digits + 12, offset, 16);
    return block * 4096 + offset + 1;
}

/// The file library does not notice the end of an ADF file, and takes what it finds in its memory instead.
void refuseCutAdf(const std::filesystem::path& file)
{
    const std::uintmax_t size = std::filesystem::file_size(file);
    const std::optional<std::uintmax_t> wanted = sizeInHeader(file);
    if (wanted && size < *wanted) {
        throw CgnsError("the file is cut short, it has " + std::to_string(size) + " of its " + std::to_string(*wanted) +
                        " bytes; copy or export it again.");
    }
}

/// The file library opens an HDF5 file without a root, but never closes it again, and has room for so many
/// files only. What is no HDF5 file at all is left to it.
void refuseHdf5WithoutRoot(const std::filesystem::path& file)
{
    bool hasRoot = true;
    H5E_BEGIN_TRY
    {
        const hid_t opened = H5Fopen(file.c_str(), H5F_ACC_RDONLY, H5P_DEFAULT);
        if (opened >= 0) {
            const hid_t root = H5Gopen2(opened, "/", H5P_DEFAULT);
            hasRoot = root >= 0;
            H5Gclose(root);
            H5Fclose(opened);
        }
    }
    H5E_END_TRY
    if (!hasRoot) {
        throw CgnsError("the file has no root; it is damaged, export it again.");
    }
}

} // namespace

void checkFile(const std::filesystem::path& file)
{
    refuseWhatIsNoFile(file);
    refuseCutAdf(file);
    refuseHdf5WithoutRoot(file);
}

} // namespace gtm::bundled
