#pragma once

#include "gtm/Body.h"
#include "gtm/FaceUse.h"
#include "gtm/Part.h"
#include "gtm/TopologyMap.h"
#include "locationmodel/RegionFacts.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace gtm::bundled {

class ModelBody;
class ModelFaceUse;
class ModelTopology;

/// What all regions of a bundled topology have. Every `gtm::Region` in this library is one too.
class RegionInfo {
public:
    enum class Kind { Part, Body, Face, FaceUse };

    RegionInfo(const ModelTopology& owner, Kind itsKind, std::size_t itsIndex, std::string itsId)
        : topology(&owner), kind(itsKind), index(itsIndex), name(std::move(itsId))
    {}

    const ModelTopology* const topology;
    const Kind kind;
    const std::size_t index; ///< place among the regions of its kind
    const std::string name;  ///< the id
};

/// The information behind a region, which must not be null.
inline const RegionInfo& infoOf(const Region& region) { return dynamic_cast<const RegionInfo&>(region); }

class ModelPart final : public Part, public RegionInfo {
public:
    ModelPart(const ModelTopology& owner, std::size_t itsIndex, std::string itsId)
        : RegionInfo(owner, Kind::Part, itsIndex, std::move(itsId))
    {}

    std::string id() const override { return name; }

    std::vector<ModelBody*> members;
};

class ModelBody final : public Body, public RegionInfo {
public:
    ModelBody(const ModelTopology& owner, std::size_t itsIndex, std::string itsId, ModelPart* itsPart)
        : RegionInfo(owner, Kind::Body, itsIndex, std::move(itsId)), part(itsPart)
    {}

    std::string id() const override { return name; }

    ModelPart* const part; ///< null outside every part
    std::vector<ModelFaceUse*> faceUses;
    std::vector<ModelFaceUse*> firstSides; ///< those that have a partner and are the first face use of their face
    std::vector<ExternalBody> zones;
    BodyFacts facts;
};

class ModelFace final : public Face, public RegionInfo {
public:
    ModelFace(const ModelTopology& owner, std::size_t itsIndex, std::string itsId)
        : RegionInfo(owner, Kind::Face, itsIndex, std::move(itsId))
    {}

    std::string id() const override { return name; }

    using Face::setFaceUses;

    FaceFacts facts;
};

class ModelFaceUse final : public FaceUse, public RegionInfo {
public:
    ModelFaceUse(const ModelTopology& owner, std::size_t itsIndex, std::string itsId, ModelFace* itsFace,
                 ModelBody* itsBody)
        : FaceUse(itsFace, itsBody), RegionInfo(owner, Kind::FaceUse, itsIndex, std::move(itsId))
    {}

    std::string id() const override { return name; }

    ModelFace& ownFace() const { return static_cast<ModelFace&>(*face()); }
    ModelBody& ownBody() const { return static_cast<ModelBody&>(*body()); }
    ModelFaceUse* otherSide() const { return static_cast<ModelFaceUse*>(partner()); }

    std::vector<ExternalFaceSide> zones;
};

/// Orders regions of one kind as the topology does.
struct ByIndex {
    template <class RegionType>
    bool operator()(const RegionType* a, const RegionType* b) const
    {
        return a->index < b->index;
    }
};

/// Brings regions into the order of the topology, each once. Each region is looked at once only: they may be
/// many and far apart.
template <class RegionType>
void sortUnique(std::vector<RegionType*>& regions)
{
    std::vector<std::pair<std::size_t, RegionType*>> ranked;
    ranked.reserve(regions.size());
    for (RegionType* region : regions) {
        ranked.emplace_back(region->index, region);
    }
    std::sort(ranked.begin(), ranked.end());
    ranked.erase(std::unique(ranked.begin(), ranked.end()), ranked.end());
    std::transform(ranked.begin(), ranked.end(), regions.begin(), [](const auto& entry) { return entry.second; });
    regions.resize(ranked.size());
}

} // namespace gtm::bundled
