#include "locationmodel/TopologyFile.h"

#include "gtm/LocationModel.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "support/JsonNode.h"
#include "support/JsonSource.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace gtm::bundled {
namespace {

using support::JsonError;
using support::JsonNode;
using support::JsonSource;

constexpr std::string_view formatName = "physics-topology";
constexpr std::int32_t formatVersion = 1;

/// The id that a face use has when none is given.
std::string defaultFaceUseId(const FaceUse& faceUse)
{
    const FaceUse* first = faceUse.face()->firstFaceUse();
    const bool isSecondWithin = &faceUse != first && faceUse.body() == first->body();
    return faceUse.face()->id() + "@" + faceUse.body()->id() + (isSecondWithin ? "#2" : "");
}

/// Reads the document from the top, list by list, into a builder.
class Reader {
public:
    explicit Reader(const JsonSource& source) : m_root(source.root()) {}

    std::unique_ptr<LocationModel> read()
    {
        m_root.expectKeys({"format", "version", "parts", "bodies", "faces"});
        readHeader();
        const JsonNode bodies = m_root.member("bodies");
        for (const JsonNode& body : bodies.items()) {
            body.expectKeys({"id", "zones", "volume", "color"});
            m_bodies.insert(m_bodyIds.emplace_back(body.member("id").string()));
        }
        if (const auto parts = m_root.find("parts")) {
            readParts(*parts);
        }
        for (const JsonNode& body : bodies.items()) {
            readBody(body);
        }
        if (const auto faces = m_root.find("faces")) {
            for (const JsonNode& face : faces->items()) {
                readFace(face);
            }
        }
        return m_builder.build();
    }

private:
    void readHeader() const
    {
        const JsonNode format = m_root.member("format");
        if (format.string() != formatName) {
            format.failExpected("\"" + std::string(formatName) + "\"");
        }
        const JsonNode version = m_root.member("version");
        if (version.integer() != formatVersion) {
            version.failExpected("1, the only version known so far");
        }
    }

    void readParts(const JsonNode& parts)
    {
        for (const JsonNode& part : parts.items()) {
            part.expectKeys({"id", "bodies"});
            const JsonNode id = part.member("id");
            placed(id, [this, &id] { m_builder.addPart(id.string()); });
            for (const JsonNode& body : part.member("bodies").items()) {
                const std::string bodyId = knownBody(body);
                const auto [other, isNew] = m_partOfBody.emplace(bodyId, id.string());
                if (!isNew) {
                    body.fail("the body \"" + bodyId + "\" is already in the part \"" + other->second +
                              "\"; a body is in one part at most.");
                }
            }
        }
    }

    void readBody(const JsonNode& body)
    {
        std::vector<std::int32_t> zones;
        if (const auto list = body.find("zones")) {
            for (const JsonNode& zone : list->items()) {
                zones.push_back(zone.integer());
            }
        }
        const JsonNode id = body.member("id");
        const auto part = m_partOfBody.find(id.string());
        const BodyFacts facts{numberAt(body, "volume"), textAt(body, "color")};
        placed(id, [&] {
            m_builder.addBody(id.string(), part == m_partOfBody.end() ? "" : part->second, zones);
            if (!(facts == BodyFacts())) {
                m_builder.describeBody(id.string(), facts);
            }
        });
    }

    void readFace(const JsonNode& face)
    {
        face.expectKeys({"id", "sides", "area", "centroid", "color"});
        const JsonNode id = face.member("id");
        const JsonNode list = face.member("sides");
        std::vector<TopologyBuilder::Side> sides;
        for (const JsonNode& side : list.items()) {
            sides.push_back(readSide(side));
        }
        if (sides.empty() || sides.size() > 2) {
            list.fail("the face has " + std::to_string(sides.size()) +
                      " sides, expected one, or two where it separates bodies.");
        }
        const std::optional<TopologyBuilder::Side> second =
            sides.size() == 2 ? std::optional(sides.back()) : std::nullopt;
        const FaceFacts facts{numberAt(face, "area"), pointAt(face, "centroid"), textAt(face, "color")};
        placed(id, [&] {
            m_builder.addFace(id.string(), sides.front(), second);
            if (!(facts == FaceFacts())) {
                m_builder.describeFace(id.string(), facts);
            }
        });
    }

    static std::optional<double> numberAt(const JsonNode& region, std::string_view key)
    {
        const auto number = region.find(key);
        return number ? std::optional(number->number()) : std::nullopt;
    }

    static std::string textAt(const JsonNode& region, std::string_view key)
    {
        const auto text = region.find(key);
        return text ? text->string() : std::string();
    }

    static std::optional<std::array<double, 3>> pointAt(const JsonNode& region, std::string_view key)
    {
        const auto point = region.find(key);
        if (!point) {
            return std::nullopt;
        }
        const std::vector<JsonNode> coordinates = point->items();
        if (coordinates.size() != 3) {
            point->failExpected("a list of three numbers");
        }
        return std::array<double, 3>{coordinates[0].number(), coordinates[1].number(), coordinates[2].number()};
    }

    TopologyBuilder::Side readSide(const JsonNode& node) const
    {
        TopologyBuilder::Side side;
        if (node.isString()) {
            side.body = knownBody(node);
            return side;
        }
        if (!node.isObject()) {
            node.failExpected("the id of a body, or an object with the key \"body\"");
        }
        node.expectKeys({"body", "id", "zones"});
        side.body = knownBody(node.member("body"));
        if (const auto id = node.find("id")) {
            side.id = id->string();
            if (side.id.empty()) {
                id->failExpected("an id; leave the key out for the usual one");
            }
        }
        if (const auto zones = node.find("zones")) {
            for (const JsonNode& zone : zones->items()) {
                side.zones.push_back(readSideZone(zone));
            }
        }
        return side;
    }

    static ExternalFaceSide readSideZone(const JsonNode& node)
    {
        if (node.isNumber()) {
            return {node.integer(), 0};
        }
        if (!node.isObject()) {
            node.failExpected("a zone id, or an object with the keys \"zone\" and \"side\"");
        }
        node.expectKeys({"zone", "side"});
        return {node.member("zone").integer(), node.member("side").integer()};
    }

    std::string knownBody(const JsonNode& node) const
    {
        std::string id = node.string();
        if (m_bodies.count(id) == 0) {
            node.failUnknown("the id of a body in \"bodies\"", m_bodyIds);
        }
        return id;
    }

    /// Runs a step of the builder and puts the place in front of what it complains about.
    template <class Step>
    static void placed(const JsonNode& node, Step step)
    {
        try {
            step();
        } catch (const TopologyError& error) {
            node.fail(error.what());
        }
    }

    JsonNode m_root;
    TopologyBuilder m_builder;
    std::vector<std::string> m_bodyIds; ///< in the order of the file, for hints
    std::unordered_set<std::string> m_bodies;
    std::unordered_map<std::string, std::string> m_partOfBody;
};

/// Calls `read` with the errors of the JSON reader turned into ours.
template <class Read>
std::unique_ptr<LocationModel> translated(Read read)
{
    try {
        const JsonSource source = read();
        return Reader(source).read();
    } catch (const JsonError& error) {
        throw TopologyError(error.what());
    }
}

// Writing

using Json = nlohmann::ordered_json;

std::string dumped(const Json& value)
{
    try {
        return value.dump();
    } catch (const Json::exception&) {
        throw TopologyError("An id of the topology is not UTF-8, which a topology file cannot hold: " +
                            value.dump(-1, ' ', true, Json::error_handler_t::replace) + ".");
    }
}

template <class RegionType>
Json idsOf(const std::vector<RegionType*>& regions)
{
    Json ids = Json::array();
    for (const RegionType* region : regions) {
        ids.push_back(region->id());
    }
    return ids;
}

void addFacts(const BodyFacts& facts, Json& json)
{
    if (facts.volume) {
        json["volume"] = *facts.volume;
    }
    if (!facts.color.empty()) {
        json["color"] = facts.color;
    }
}

void addFacts(const FaceFacts& facts, Json& json)
{
    if (facts.area) {
        json["area"] = *facts.area;
    }
    if (facts.centroid) {
        json["centroid"] = *facts.centroid;
    }
    if (!facts.color.empty()) {
        json["color"] = facts.color;
    }
}

Json describe(const Body& body, const TopologyMap* map)
{
    Json json = {{"id", body.id()}};
    if (map != nullptr) {
        for (const ExternalBody& zone : map->externalBodies(&body)) {
            json["zones"].push_back(zone.zoneId);
        }
    }
    return json;
}

Json describe(const FaceUse& faceUse, const TopologyMap* map)
{
    Json json = {{"body", faceUse.body()->id()}};
    if (faceUse.id() != defaultFaceUseId(faceUse)) {
        json["id"] = faceUse.id();
    }
    if (map != nullptr) {
        for (const ExternalFaceSide& zone : map->externalFaceSides(&faceUse)) {
            json["zones"].push_back(zone.sideWord == 0 ? Json(zone.zoneId)
                                                       : Json{{"zone", zone.zoneId}, {"side", zone.sideWord}});
        }
    }
    return json.size() == 1 ? json["body"] : json;
}

Json describe(const Face& face, const TopologyMap* map)
{
    Json sides = Json::array({describe(*face.firstFaceUse(), map)});
    if (face.secondFaceUse() != nullptr) {
        sides.push_back(describe(*face.secondFaceUse(), map));
    }
    return {{"id", face.id()}, {"sides", sides}};
}

/// A member of the document whose value is a list, one entry a line.
template <class RegionType, class Describe>
std::string listed(const std::string& key, const std::vector<RegionType*>& regions, Describe describeOne)
{
    std::string text = ",\n  \"" + key + "\": [";
    for (const RegionType* region : regions) {
        text += (region == regions.front() ? "\n    " : ",\n    ") + dumped(describeOne(*region));
    }
    return text + (regions.empty() ? "]" : "\n  ]");
}

} // namespace

std::unique_ptr<LocationModel> readTopology(const std::filesystem::path& file)
{
    return translated([&file] { return JsonSource::fromFile(file); });
}

std::unique_ptr<LocationModel> readTopologyText(const std::string& text, const std::string& name)
{
    return translated([&] { return JsonSource::fromText(text, name); });
}

std::string writeTopology(const LocationModel& model)
{
    const TopologyMap* map = model.solverZoneMap();
    const auto describeOne = [&model, map](const auto& region) {
        Json json = describe(region, map);
        addFacts(model.facts(&region), json);
        return json;
    };
    const auto describePart = [](const Part& part) {
        return Json{{"id", part.id()}, {"bodies", idsOf(part.bodies())}};
    };
    return "{\n  \"format\": \"" + std::string(formatName) + "\",\n  \"version\": " + std::to_string(formatVersion) +
           listed("parts", model.parts(), describePart) + listed("bodies", model.bodies(), describeOne) +
           listed("faces", model.faces(), describeOne) + "\n}\n";
}

} // namespace gtm::bundled
