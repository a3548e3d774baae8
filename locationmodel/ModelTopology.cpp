#include "locationmodel/ModelTopology.h"

#include <utility>

namespace gtm::bundled {
namespace {

/// Appends a region to the list of its kind and enters its id.
template <class RegionType, class... Arguments>
RegionType& append(const ModelTopology& owner, std::vector<std::unique_ptr<RegionType>>& list, ModelTopology::Ids& ids,
                   Arguments&&... arguments)
{
    list.push_back(std::make_unique<RegionType>(owner, list.size(), std::forward<Arguments>(arguments)...));
    ids.emplace(list.back()->name, list.back().get());
    return *list.back();
}

} // namespace

ModelPart& ModelTopology::addPart(const std::string& id) { return append(*this, m_parts, m_ids, id); }

ModelBody& ModelTopology::addBody(const std::string& id, ModelPart* part)
{
    ModelBody& body = append(*this, m_bodies, m_ids, id, part);
    if (part != nullptr) {
        part->members.push_back(&body);
    }
    return body;
}

ModelFace& ModelTopology::addFace(const std::string& id) { return append(*this, m_faces, m_ids, id); }

ModelFaceUse& ModelTopology::addFaceUse(const std::string& id, ModelFace& face, ModelBody& body)
{
    ModelFaceUse& use = append(*this, m_faceUses, m_ids, id, &face, &body);
    if (face.firstFaceUse() == nullptr) {
        face.setFaceUses(&use, nullptr);
    } else {
        face.setFaceUses(face.firstFaceUse(), &use);
        auto* first = static_cast<ModelFaceUse*>(face.firstFaceUse());
        first->ownBody().firstSides.push_back(first);
    }
    body.faceUses.push_back(&use);
    return use;
}

Region* ModelTopology::find(std::string_view id) const
{
    const auto found = m_ids.find(id);
    return found == m_ids.end() ? nullptr : found->second;
}

bool ModelTopology::forEachMatch(const Pattern& pattern, const std::function<void(Region&)>& visit,
                                 std::size_t limit) const
{
    const std::string prefix = pattern.literalPrefix();
    if (!pattern.hasWildcard()) {
        if (Region* region = find(prefix)) {
            visit(*region);
        }
        return true;
    }
    std::size_t steps = 0;
    for (auto one = m_ids.lower_bound(prefix); one != m_ids.end(); ++one) {
        if (one->first.substr(0, prefix.size()) != prefix) {
            break;
        }
        if (++steps > limit) {
            return false;
        }
        if (pattern.matches(one->first)) {
            visit(*one->second);
        }
    }
    return true;
}

} // namespace gtm::bundled
