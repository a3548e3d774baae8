#pragma once

#include "importers/cad/CadReader.h"

#include <filesystem>
#include <functional>
#include <string>

namespace cadtests {

/// The model in lines: "body hot in heat_exchanger", "face hot/inlet: hot", "face a/b: first | second".
std::string listingOf(const gtm::bundled::LocationModel& model);

/// The number of faces with a body on either side.
std::size_t noOfSharedFaces(const gtm::bundled::LocationModel& model);

std::string contentOf(const std::filesystem::path& file);

/// What `action` complains about, or "no error".
std::string messageOf(const std::function<void()>& action);

/// A file in a folder of the running test that is gone afterwards.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& content);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

} // namespace cadtests
