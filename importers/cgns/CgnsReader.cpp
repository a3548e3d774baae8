#include "importers/cgns/CgnsReader.h"

#include "importers/cgns/CgnsFile.h"
#include "importers/cgns/CgnsModel.h"
#include "importers/cgns/CgnsTree.h"

#include <mutex>

namespace gtm::bundled {

namespace {

CgnsDescription descriptionOf(const std::filesystem::path& file)
{
    static std::mutex library;
    const std::lock_guard<std::mutex> lock(library);
    const CgnsTree tree(file);
    return describe(*tree.root());
}

} // namespace

CgnsResult readCgns(const std::filesystem::path& file, const CgnsOptions& options)
{
    try {
        return buildModel(descriptionOf(file), options);
    } catch (const TopologyError& error) {
        throw CgnsError(file.string() + ": " + error.what());
    }
}

} // namespace gtm::bundled
