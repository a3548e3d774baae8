#include "apps/CaseText.h"

#include "apps/CaseFile.h"
#include "apps/InputError.h"
#include "physics/TypeNames.h"

#include <nlohmann/json.hpp>

#include <variant>

namespace physics::apps {
namespace {

using Json = nlohmann::ordered_json;

/// In a class, so that each description may use any other.
struct Description {
    /// Adds a member unless it says no more than its absence.
    static void add(Json& object, const char* key, Json value)
    {
        if (!value.empty() && value != Json("") && value != Json("Unset") && value != Json(false)) {
            object[key] = std::move(value);
        }
    }

    template <class T>
    static Json listOf(const std::vector<T>& items)
    {
        Json list = Json::array();
        for (const T& item : items) {
            list.push_back(describe(item));
        }
        return list;
    }

    static Json describe(BoundaryTag tag) { return displayName(tag); }

    static Json describe(const CaseFile::NameInFile& name)
    {
        return {{"of", name.of}, {"name", name.name}, {"inFile", name.inFile}};
    }

    static Json describe(const CaseFile::Domain& domain)
    {
        return {{"id", domain.id}, {"type", displayName(domain.type)}, {"name", domain.name}};
    }

    static Json describe(const CaseFile::Model& model)
    {
        Json json = {{"name", model.name}};
        if (model.domains) {
            json["domains"] = listOf(*model.domains);
        }
        return json;
    }

    static Json describe(const CaseFile::Thread& thread)
    {
        Json json = {{"index", thread.index}, {"type", displayName(thread.type)}, {"threadId", thread.threadId}};
        add(json, "domains", thread.domains);
        add(json, "zones", thread.zones);
        return json;
    }

    static Json describe(const CaseFile::Shell& shell)
    {
        Json json = {{"type", displayName(shell.type)}};
        add(json, "model", shell.model);
        add(json, "threads", listOf(shell.threads));
        return json;
    }

    static void addLocation(Json& json, const std::optional<CaseFile::Location>& location)
    {
        if (location) {
            std::visit([&json](const auto& value) { json["location"] = value; }, *location);
        } else {
            json["default"] = true;
        }
    }

    static Json describe(const CaseFile::Boundary& boundary)
    {
        Json json = {{"name", boundary.name}};
        addLocation(json, boundary.location);
        add(json, "type", displayName(boundary.type));
        if (boundary.shell) {
            json["shell"] = describe(*boundary.shell);
        }
        add(json, "tags", listOf(boundary.tags));
        add(json, "threads", listOf(boundary.threads));
        return json;
    }

    static Json describe(const CaseFile::Volume& volume)
    {
        Json json = {{"name", volume.name}};
        addLocation(json, volume.location);
        add(json, "type", displayName(volume.type));
        add(json, "model", volume.model);
        add(json, "boundaries", listOf(volume.boundaries));
        add(json, "threads", listOf(volume.threads));
        add(json, "internalThreads", listOf(volume.internalThreads));
        return json;
    }

    static Json describe(const CaseFile::Side& side)
    {
        Json json = {{"boundary", side.boundary}};
        add(json, "threads", listOf(side.threads));
        add(json, "shellThreads", listOf(side.shellThreads));
        return json.size() == 1 ? json["boundary"] : json;
    }

    static Json describe(const CaseFile::Rotation& rotation)
    {
        return {{"angle", rotation.angle}, {"origin", rotation.origin}, {"direction", rotation.direction}};
    }

    static Json describe(const CaseFile::Interface& interface)
    {
        Json json = {{"name", interface.name},
                     {"between", {describe(interface.sides[0]), describe(interface.sides[1])}},
                     {"type", displayName(interface.type)}};
        add(json, "model", interface.model);
        if (interface.translation) {
            json["translation"] = *interface.translation;
        }
        if (interface.rotation) {
            json["rotation"] = describe(*interface.rotation);
        }
        if (interface.meshConnectivity != MeshConnectivity::Automatic) {
            json["meshConnectivity"] = displayName(interface.meshConnectivity);
        }
        add(json, "isMapped", interface.isMapped);
        add(json, "isStatic", interface.isStatic);
        add(json, "isMeshValid", interface.isMeshValid);
        add(json, "threads", listOf(interface.threads));
        return json;
    }

    static Json describe(const CaseFile::Group& group) { return group.volumes; }

    static Json describe(const CaseFile::Geometry& geometry)
    {
        if (geometry.reading.isAsUsual()) {
            return geometry.file;
        }
        Json json = {{"file", geometry.file}};
        if (geometry.reading.imprint) {
            json["imprint"] = *geometry.reading.imprint;
        }
        add(json, "bodiesAreFamilies", geometry.reading.bodiesAreFamilies);
        return json;
    }

    static Json describe(const CaseFile& file)
    {
        Json json = {{"format", "physics-case"}, {"version", 1}, {"geometry", describe(file.geometry)}};
        if (!file.enforceRestrictions) {
            json["enforceRestrictions"] = false;
        }
        Json masked = Json::object();
        add(masked, "parts", file.maskedParts);
        add(masked, "bodies", file.maskedBodies);
        add(json, "masked", masked);
        add(json, "models", listOf(file.models));
        add(json, "volumes", listOf(file.volumes));
        add(json, "interfaces", listOf(file.interfaces));
        add(json, "deactivated", listOf(file.deactivated));
        add(json, "names", listOf(file.names));
        return json;
    }
};

} // namespace

std::string writeCase(const CaseFile& file)
{
    const Json json = Description::describe(file);
    try {
        return json.dump(2) + "\n";
    } catch (const Json::exception&) {
        throw InputError("a case file cannot hold names that are not UTF-8; rename what is called so in the geometry "
                         "file, or make a topology file of it.");
    }
}

} // namespace physics::apps
