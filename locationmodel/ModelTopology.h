#pragma once

#include "gtm/Topology.h"
#include "gtm/TopologyMap.h"
#include "locationmodel/ModelRegions.h"
#include "locationmodel/Pattern.h"
#include "locationmodel/Reason.h"

#include <cstddef>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace gtm::bundled {

/// Knows nothing itself: the zones stand with their bodies and face uses.
class ModelMap final : public TopologyMap {};

/// The regions of a bundled topology, filled by `TopologyBuilder` and unchanged from then on, and a note
/// about the last refusal on any working copy over them.
class ModelTopology final : public Topology {
public:
    using Ids = std::map<std::string_view, Region*>;

    ModelPart& addPart(const std::string& id);
    ModelBody& addBody(const std::string& id, ModelPart* part);
    ModelFace& addFace(const std::string& id);
    ModelFaceUse& addFaceUse(const std::string& id, ModelFace& face, ModelBody& body);

    const std::vector<std::unique_ptr<ModelPart>>& ownParts() const { return m_parts; }
    const std::vector<std::unique_ptr<ModelBody>>& ownBodies() const { return m_bodies; }
    const std::vector<std::unique_ptr<ModelFace>>& ownFaces() const { return m_faces; }
    const std::vector<std::unique_ptr<ModelFaceUse>>& ownFaceUses() const { return m_faceUses; }

    /// All regions by id.
    const Ids& ids() const { return m_ids; }
    Region* find(std::string_view id) const;

    /// Shows `visit` the regions whose ids match, in byte order of the ids. Walks only the ids with the
    /// pattern's literal beginning; false when it gave up because these are more than `limit`.
    bool forEachMatch(const Pattern& pattern, const std::function<void(Region&)>& visit,
                      std::size_t limit = std::numeric_limits<std::size_t>::max()) const;

    /// Why the last creation or relocation on any working copy was refused.
    Reason& lastRefusal() { return m_lastRefusal; }

private:
    std::vector<std::unique_ptr<ModelPart>> m_parts;
    std::vector<std::unique_ptr<ModelBody>> m_bodies;
    std::vector<std::unique_ptr<ModelFace>> m_faces;
    std::vector<std::unique_ptr<ModelFaceUse>> m_faceUses;
    Ids m_ids; ///< the keys point into the regions
    Reason m_lastRefusal;
};

} // namespace gtm::bundled
