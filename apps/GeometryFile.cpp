#include "apps/GeometryFile.h"

#include "apps/InputError.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "locationmodel/TopologyFile.h"

#if defined(PHYSICS_HAS_CAD) || defined(PHYSICS_HAS_CGNS)
#include "apps/ReadInChild.h"
#endif

#ifdef PHYSICS_HAS_CAD
#include "importers/cad/CadReader.h"
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

void refuseImprint(const ReadingChoice& choice, const std::string& kind, const std::filesystem::path& file)
{
    if (choice.imprint) {
        throw InputError(file.string() + ": " + kind +
                         " has no shapes that could be imprinted; leave that choice out.");
    }
}

void refuseFamilies(const ReadingChoice& choice, const std::string& kind, const std::filesystem::path& file)
{
    if (choice.bodiesAreFamilies) {
        throw InputError(file.string() + ": " + kind +
                         " has no families of zones that could be bodies; leave that choice out.");
    }
}

#if defined(PHYSICS_HAS_CAD) || defined(PHYSICS_HAS_CGNS)
GeometryFile geometryOf(TopologyText reading, const std::filesystem::path& file)
{
    GeometryFile geometry;
    geometry.model = gtm::bundled::readTopologyText(reading.topology, file.string());
    geometry.notes = std::move(reading.notes);
    geometry.zones = std::move(reading.zones);
    geometry.conditions = std::move(reading.conditions);
    geometry.periodics = std::move(reading.periodics);
    geometry.renamed = std::move(reading.renamed);
    return geometry;
}
#endif

GeometryFile readCadFile(const std::filesystem::path& file, const ReadingChoice& choice)
{
    refuseFamilies(choice, "a shape file", file);
#ifdef PHYSICS_HAS_CAD
    const auto read = [&]() -> TopologyText {
        gtm::bundled::CadOptions options;
        options.imprint = choice.imprint;
        const gtm::bundled::CadResult result = gtm::bundled::readCad(file, options);
        return {writeTopology(*result.model), result.notes, result.renamed};
    };
    return geometryOf(readInChild(file.string(), "the geometry kernel", read), file);
#else
    throw InputError(file.string() + ": this program was built without the reader of geometry files; make a topology "
                                     "file of it elsewhere.");
#endif
}

GeometryFile readCgnsFile(const std::filesystem::path& file, const ReadingChoice& choice)
{
    refuseImprint(choice, "a mesh file", file);
#ifdef PHYSICS_HAS_CGNS
    const auto read = [&]() -> TopologyText {
        const gtm::bundled::CgnsResult result = gtm::bundled::readCgns(file, {choice.bodiesAreFamilies});
        return {writeTopology(*result.model),
                result.notes,
                result.renamed,
                result.zones,
                result.conditions,
                result.periodics};
    };
    return geometryOf(readInChild(file.string(), "the library of CGNS files", read), file);
#else
    throw InputError(file.string() + ": this program was built without the reader of CGNS files; make a topology file "
                                     "of it elsewhere.");
#endif
}

GeometryFile readTopologyFile(const std::filesystem::path& file, const ReadingChoice& choice)
{
    refuseImprint(choice, "a topology file", file);
    refuseFamilies(choice, "a topology file", file);
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

GeometryFile readGeometry(const std::filesystem::path& file, const ReadingChoice& choice)
{
    const std::string extension = extensionOf(file);
    try {
        if (extension == ".json") {
            return readTopologyFile(file, choice);
        }
        if (extension == ".step" || extension == ".stp" || extension == ".brep" || extension == ".brp") {
            return readCadFile(file, choice);
        }
        if (extension == ".cgns") {
            return readCgnsFile(file, choice);
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
