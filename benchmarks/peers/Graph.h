#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace physics {
class Physics;
} // namespace physics

// The data of a set-up as plain structs, for libraries that write and read such. `fields` of each calls
// `visit` with the name of each field and the field itself; one description serves them all. Left out are
// the type tables, which are a few lines of constant size.

namespace peers {

struct Domain {
    int id = 0;
    int type = 0;
    std::string name;

    template <class Self, class Visitor>
    static void fields(Self& self, Visitor&& visit)
    {
        visit("id", self.id);
        visit("type", self.type);
        visit("name", self.name);
    }
    bool operator==(const Domain&) const = default;
};

struct Model {
    int id = 0;
    std::vector<int> volumes;
    std::vector<int> interfaces;
    std::vector<Domain> domains;

    template <class Self, class Visitor>
    static void fields(Self& self, Visitor&& visit)
    {
        visit("id", self.id);
        visit("volumes", self.volumes);
        visit("interfaces", self.interfaces);
        visit("domains", self.domains);
    }
    bool operator==(const Model&) const = default;
};

/// Name and location string of an entity of the location model.
struct Place {
    std::string name;
    std::string location;

    template <class Self, class Visitor>
    static void fields(Self& self, Visitor&& visit)
    {
        visit("name", self.name);
        visit("location", self.location);
    }
    bool operator==(const Place&) const = default;
};

struct Volume {
    int id = 0;
    int type = 0;
    int model = -1;
    int activationGroup = -1;
    bool isDefault = false;
    Place place;
    std::vector<int> boundaries;

    template <class Self, class Visitor>
    static void fields(Self& self, Visitor&& visit)
    {
        visit("id", self.id);
        visit("type", self.type);
        visit("model", self.model);
        visit("activationGroup", self.activationGroup);
        visit("isDefault", self.isDefault);
        visit("place", self.place);
        visit("boundaries", self.boundaries);
    }
    bool operator==(const Volume&) const = default;
};

struct Boundary {
    int id = 0;
    int type = 0;
    int shellType = -1;
    int shellModel = -1;
    int volume = -1;
    bool isDefault = false;
    Place place;
    std::vector<int> patches;
    std::vector<int> tags;

    template <class Self, class Visitor>
    static void fields(Self& self, Visitor&& visit)
    {
        visit("id", self.id);
        visit("type", self.type);
        visit("shellType", self.shellType);
        visit("shellModel", self.shellModel);
        visit("volume", self.volume);
        visit("isDefault", self.isDefault);
        visit("place", self.place);
        visit("patches", self.patches);
        visit("tags", self.tags);
    }
    bool operator==(const Boundary&) const = default;
};

struct Interface {
    int id = 0;
    int type = 0;
    int periodicity = 0;
    int meshConnectivity = 0;
    int model = -1;
    int first = -1;
    int second = -1;
    bool isMapped = false;
    bool isStatic = false;
    bool isMeshValid = false;
    std::string name;

    template <class Self, class Visitor>
    static void fields(Self& self, Visitor&& visit)
    {
        visit("id", self.id);
        visit("type", self.type);
        visit("periodicity", self.periodicity);
        visit("meshConnectivity", self.meshConnectivity);
        visit("model", self.model);
        visit("first", self.first);
        visit("second", self.second);
        visit("isMapped", self.isMapped);
        visit("isStatic", self.isStatic);
        visit("isMeshValid", self.isMeshValid);
        visit("name", self.name);
    }
    bool operator==(const Interface&) const = default;
};

struct Patch {
    int id = 0;
    int boundary = -1;
    int interface = -1;

    template <class Self, class Visitor>
    static void fields(Self& self, Visitor&& visit)
    {
        visit("id", self.id);
        visit("boundary", self.boundary);
        visit("interface", self.interface);
    }
    bool operator==(const Patch&) const = default;
};

struct Bundle {
    int index = 0;
    int threadId = 0;
    int type = 0;
    std::vector<int> domainIds;
    std::vector<int> zoneIds;

    template <class Self, class Visitor>
    static void fields(Self& self, Visitor&& visit)
    {
        visit("index", self.index);
        visit("threadId", self.threadId);
        visit("type", self.type);
        visit("domainIds", self.domainIds);
        visit("zoneIds", self.zoneIds);
    }
    bool operator==(const Bundle&) const = default;
};

struct Settings {
    int id = 0;
    int type = 0;
    int topologyType = 0;
    int model = -1;
    int volume = -1;
    int patch = -1;
    int interface = -1;
    std::vector<Bundle> bundles;

    template <class Self, class Visitor>
    static void fields(Self& self, Visitor&& visit)
    {
        visit("id", self.id);
        visit("type", self.type);
        visit("topologyType", self.topologyType);
        visit("model", self.model);
        visit("volume", self.volume);
        visit("patch", self.patch);
        visit("interface", self.interface);
        visit("bundles", self.bundles);
    }
    bool operator==(const Settings&) const = default;
};

struct Graph {
    std::vector<Model> models;
    std::vector<Volume> volumes;
    std::vector<Boundary> boundaries;
    std::vector<Interface> interfaces;
    std::vector<Patch> patches;
    std::vector<Settings> settings;

    template <class Self, class Visitor>
    static void fields(Self& self, Visitor&& visit)
    {
        visit("models", self.models);
        visit("volumes", self.volumes);
        visit("boundaries", self.boundaries);
        visit("interfaces", self.interfaces);
        visit("patches", self.patches);
        visit("settings", self.settings);
    }
    bool operator==(const Graph&) const = default;
};

/// Anything that has `fields`.
template <class T>
concept Described = requires(T& object)
{
    T::fields(object, [](const char*, auto&) {});
};

/// The data of a set-up without masks, activation groups and default entities.
Graph graphOf(const physics::Physics& setUp);

} // namespace peers
