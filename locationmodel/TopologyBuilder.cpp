#include "locationmodel/TopologyBuilder.h"

#include "locationmodel/LocationModel.h"
#include "locationmodel/ModelTopology.h"
#include "support/NearestName.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace gtm::bundled {
namespace {

const char* article(RegionInfo::Kind kind)
{
    switch (kind) {
    case RegionInfo::Kind::Part:
        return "a part";
    case RegionInfo::Kind::Body:
        return "a body";
    case RegionInfo::Kind::Face:
        return "a face";
    case RegionInfo::Kind::FaceUse:
        return "a face use";
    }
    return "";
}

/// Why a text cannot be an id, as the end of a sentence, or nothing.
std::string flaw(const std::string& id)
{
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    if (id.empty()) {
        return "is empty";
    }
    if (id.find(',') != std::string::npos) {
        return "has a comma, which separates the terms of a location";
    }
    if (std::any_of(id.begin(), id.end(), isControl)) {
        return "has a line end or another control character";
    }
    if (id.front() == ' ' || id.back() == ' ') {
        return "begins or ends with a blank";
    }
    return {};
}

/// An id inside a message: in quotes, control characters made visible.
std::string quoted(const std::string& id)
{
    std::string text = "\"";
    for (const char c : id) {
        const bool isControl = static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
        text += isControl ? '?' : c;
    }
    return text + '"';
}

bool isColor(const std::string& text)
{
    return text.size() == 7 && text.front() == '#' &&
           text.find_first_not_of("0123456789abcdef", 1) == std::string::npos;
}

void refuse(const std::string& region, const std::string& what) { throw TopologyError("The " + region + " " + what); }

void checkSize(const std::string& region, const char* what, const std::optional<double>& size)
{
    if (size && (!std::isfinite(*size) || *size < 0)) {
        refuse(region, std::string("has ") + what +
                           " that is below zero or not finite; leave it out where it is not "
                           "known.");
    }
}

void checkColor(const std::string& region, const std::string& color)
{
    if (!color.empty() && !isColor(color)) {
        refuse(region, "has the colour " + quoted(color) + "; write it as \"#rrggbb\" in small letters.");
    }
}

} // namespace

class TopologyBuilder::Implementation {
public:
    /// Refuses an id that is malformed or taken. `others` are ids that the same step is about to take.
    void checkId(RegionInfo::Kind kind, const std::string& id, std::initializer_list<std::string> others = {}) const
    {
        if (const std::string wrong = flaw(id); !wrong.empty()) {
            throw TopologyError("The id " + quoted(id) + " of " + article(kind) + " " + wrong +
                                "; give it another id.");
        }
        if (const Region* taken = topology->find(id)) {
            throw TopologyError("The id \"" + id + "\" of " + article(kind) + " is already the id of " +
                                article(infoOf(*taken).kind) + "; every region needs an id of its own.");
        }
        if (std::find(others.begin(), others.end(), id) != others.end()) {
            throw TopologyError("The id \"" + id +
                                "\" is given to two regions of one face; every region needs an id "
                                "of its own.");
        }
    }

    template <class RegionType>
    RegionType& findForReference(RegionInfo::Kind kind, const std::string& id, const std::string& user,
                                 const std::vector<std::unique_ptr<RegionType>>& known) const
    {
        if (auto* found = dynamic_cast<RegionType*>(topology->find(id))) {
            return *found;
        }
        std::vector<std::string> names;
        for (const auto& region : known) {
            names.push_back(region->name);
        }
        const std::string what = std::string(article(kind)).substr(2);
        throw TopologyError(user + " refers to the " + what + " " + quoted(id) + ", which does not exist" +
                            support::hintForName(id, names));
    }

    ModelBody& bodyOf(const std::string& face, const Side& side) const
    {
        if (side.body.empty()) {
            throw TopologyError("The face \"" + face + "\" has a side without a body; name the body that it bounds.");
        }
        return findForReference(RegionInfo::Kind::Body, side.body, "The face \"" + face + "\"", topology->ownBodies());
    }

    std::unique_ptr<ModelTopology> topology = std::make_unique<ModelTopology>();
    bool hasZones = false;
};

TopologyBuilder::TopologyBuilder() : m_implementation(std::make_unique<Implementation>()) {}
TopologyBuilder::~TopologyBuilder() = default;

void TopologyBuilder::addPart(const std::string& id)
{
    m_implementation->checkId(RegionInfo::Kind::Part, id);
    m_implementation->topology->addPart(id);
}

void TopologyBuilder::addBody(const std::string& id, const std::string& part, const std::vector<std::int32_t>& zoneIds)
{
    Implementation& self = *m_implementation;
    self.checkId(RegionInfo::Kind::Body, id);
    ModelPart* itsPart = part.empty() ? nullptr
                                      : &self.findForReference(RegionInfo::Kind::Part, part, "The body \"" + id + "\"",
                                                               self.topology->ownParts());
    ModelBody& body = self.topology->addBody(id, itsPart);
    for (const std::int32_t zoneId : zoneIds) {
        body.zones.push_back({zoneId});
    }
    self.hasZones = self.hasZones || !zoneIds.empty();
}

void TopologyBuilder::addFace(const std::string& id, const Side& first, const std::optional<Side>& second)
{
    Implementation& self = *m_implementation;
    self.checkId(RegionInfo::Kind::Face, id);
    ModelBody& firstBody = self.bodyOf(id, first);
    ModelBody* secondBody = second ? &self.bodyOf(id, *second) : nullptr;

    const std::string firstId = first.id.empty() ? id + "@" + first.body : first.id;
    self.checkId(RegionInfo::Kind::FaceUse, firstId, {id});
    std::string secondId;
    if (second) {
        const std::string suffix = secondBody == &firstBody ? "#2" : "";
        secondId = second->id.empty() ? id + "@" + second->body + suffix : second->id;
        self.checkId(RegionInfo::Kind::FaceUse, secondId, {id, firstId});
    }

    ModelFace& face = self.topology->addFace(id);
    self.topology->addFaceUse(firstId, face, firstBody).zones = first.zones;
    self.hasZones = self.hasZones || !first.zones.empty();
    if (second) {
        self.topology->addFaceUse(secondId, face, *secondBody).zones = second->zones;
        self.hasZones = self.hasZones || !second->zones.empty();
    }
}

void TopologyBuilder::describeBody(const std::string& id, const BodyFacts& facts)
{
    const std::string region = "body " + quoted(id);
    ModelBody& body = m_implementation->findForReference(RegionInfo::Kind::Body, id, "A fact",
                                                         m_implementation->topology->ownBodies());
    checkSize(region, "a volume", facts.volume);
    checkColor(region, facts.color);
    body.facts = facts;
}

void TopologyBuilder::describeFace(const std::string& id, const FaceFacts& facts)
{
    const std::string region = "face " + quoted(id);
    ModelFace& face = m_implementation->findForReference(RegionInfo::Kind::Face, id, "A fact",
                                                         m_implementation->topology->ownFaces());
    checkSize(region, "an area", facts.area);
    checkColor(region, facts.color);
    if (facts.centroid && !std::all_of(facts.centroid->begin(), facts.centroid->end(),
                                       [](double value) { return std::isfinite(value); })) {
        refuse(region, "has a centroid that is not finite; leave it out where it is not known.");
    }
    face.facts = facts;
}

std::unique_ptr<LocationModel> TopologyBuilder::build()
{
    const std::unique_ptr<Implementation> finished =
        std::exchange(m_implementation, std::make_unique<Implementation>());
    return std::unique_ptr<LocationModel>(new LocationModel(std::move(finished->topology), finished->hasZones));
}

} // namespace gtm::bundled
