#include "apps/check/Places.h"

#include "apps/CaseFile.h"

namespace physics::apps {
namespace {

/// No type has a blank.
std::string keyOf(const Finding::Subject& subject) { return subject.type + " " + subject.name; }

} // namespace

Places::Places(const CaseFile& file, const gtm::support::JsonSource& source)
    : m_geometry(file.geometry.path), m_positions(source.positions())
{
    for (const CaseFile::Volume& volume : file.volumes) {
        m_pointers.emplace(keyOf({"volume", volume.name}), volume.path);
        for (const CaseFile::Boundary& boundary : volume.boundaries) {
            m_pointers.emplace(keyOf({"boundary", volume.name + "::" + boundary.name}), boundary.path);
        }
    }
    for (const CaseFile::Interface& interface : file.interfaces) {
        m_pointers.emplace(keyOf({"interface", interface.name}), interface.path);
    }
}

std::optional<Places::Place> Places::find(const Finding::Subject& subject) const
{
    std::string pointer = subject.name;
    if (subject.type == "body") {
        pointer = m_geometry;
    } else if (subject.type != "place") {
        const auto found = m_pointers.find(keyOf(subject));
        if (found == m_pointers.end()) {
            return std::nullopt;
        }
        pointer = found->second;
    }
    const auto position = m_positions.find(pointer);
    if (position == m_positions.end()) {
        return std::nullopt;
    }
    return Place{pointer, position->second.line, position->second.column};
}

} // namespace physics::apps
