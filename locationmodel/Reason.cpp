#include "locationmodel/Reason.h"

#include "locationmodel/ModelTopology.h"
#include "support/NearestName.h"

#include <utility>
#include <vector>

namespace gtm::bundled {

Reason Reason::unknown(std::string sentence, std::string name, const ModelTopology& topology, bool ofSurface)
{
    Reason reason(std::move(sentence));
    reason.m_unknown = std::move(name);
    reason.m_topology = &topology;
    reason.m_isOfSurface = ofSurface;
    return reason;
}

std::string Reason::text() const
{
    if (m_topology == nullptr) {
        return m_sentence;
    }
    std::vector<std::string> names;
    for (const auto& part : m_topology->ownParts()) {
        names.push_back(part->name);
    }
    for (const auto& body : m_topology->ownBodies()) {
        names.push_back(body->name);
    }
    if (m_isOfSurface) {
        for (const auto& face : m_topology->ownFaces()) {
            names.push_back(face->name);
        }
    }
    return m_sentence + support::hintForName(m_unknown, names);
}

} // namespace gtm::bundled
