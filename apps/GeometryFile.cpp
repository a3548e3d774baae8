#include "apps/GeometryFile.h"

#include "apps/InputError.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "locationmodel/TopologyFile.h"

#ifdef PHYSICS_HAS_CAD
#include "apps/ReadInChild.h"
#include "importers/cad/CadReader.h"
#endif

#ifdef PHYSICS_HAS_CGNS
#include "importers/cgns/CgnsReader.h"
#endif

#include <algorithm>
#include <utility>

namespace physics::apps {
namespace {

std::string extensionOf(const std::filesystem::path& file)
{
    std::string extension = file.extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return extension;
}

#ifdef PHYSICS_HAS_CAD
GeometryFile readCadFile(const std::filesystem::path& file, std::optional<bool> imprint)
{
    const TopologyText reading = readInChild(file.string(), "the geometry kernel", [&]() -> TopologyText {
        gtm::bundled::CadOptions options;
        options.imprint = imprint;
        const gtm::bundled::CadResult result = gtm::bundled::readCad(file, options);
        return {writeTopology(*result.model), result.notes, result.renamed};
    });
    GeometryFile geometry;
    geometry.model = gtm::bundled::readTopologyText(reading.topology, file.string());
    geometry.notes = reading.notes;
    geometry.renamed = reading.renamed;
    return geometry;
}
#else
GeometryFile readCadFile(const std::filesystem::path& file, std::optional<bool> /*imprint*/)
{
    throw InputError(file.string() + ": this program was built without the reader of geometry files; make a topology "
                                     "file of it elsewhere.");
}
#endif

GeometryFile readCgnsFile(const std::filesystem::path& file, std::optional<bool> imprint)
{
    if (imprint) {
        throw InputError(file.string() + ": a mesh file has no shapes that could be imprinted; leave that choice out.");
    }
#ifdef PHYSICS_HAS_CGNS
    gtm::bundled::CgnsResult result = gtm::bundled::readCgns(file);
    GeometryFile geometry;
    geometry.model = std::move(result.model);
    geometry.notes = std::move(result.notes);
    geometry.zones = std::move(result.zones);
    geometry.conditions = std::move(result.conditions);
    geometry.periodics = std::move(result.periodics);
    geometry.renamed = std::move(result.renamed);
    return geometry;
#else
    throw InputError(file.string() + ": this program was built without the reader of CGNS files; make a topology file "
                                     "of it elsewhere.");
#endif
}

GeometryFile readTopologyFile(const std::filesystem::path& file, std::optional<bool> imprint)
{
    if (imprint) {
        throw InputError(file.string() + ": a topology file has no shapes that could be imprinted; leave that choice "
                                         "out.");
    }
    GeometryFile geometry;
    geometry.model = gtm::bundled::readTopology(file);
    return geometry;
}

} // namespace

GeometryFile::GeometryFile() = default;
GeometryFile::GeometryFile(GeometryFile&&) noexcept = default;
GeometryFile& GeometryFile::operator=(GeometryFile&&) noexcept = default;
GeometryFile::~GeometryFile() = default;

std::string GeometryFile::nameOf(const std::string& id) const
{
    const auto known = renamed.find(id);
    return known == renamed.end() ? id : known->second;
}

GeometryFile readGeometry(const std::filesystem::path& file, std::optional<bool> imprint)
{
    const std::string extension = extensionOf(file);
    try {
        if (extension == ".json") {
            return readTopologyFile(file, imprint);
        }
        if (extension == ".step" || extension == ".stp" || extension == ".brep" || extension == ".brp") {
            return readCadFile(file, imprint);
        }
        if (extension == ".cgns") {
            return readCgnsFile(file, imprint);
        }
    } catch (const gtm::bundled::TopologyError& error) {
        throw InputError(error.what());
    }
    if (extension == ".msh") {
        throw InputError(file.string() + ": make a topology file of this mesh with physics-gmsh, and use that.");
    }
    throw InputError(file.string() +
                     ": cannot tell the kind of this file; its name should end in .json for a topology file, or in "
                     ".step, .stp, .brep, .brp or .cgns for a geometry file.");
}

} // namespace physics::apps
