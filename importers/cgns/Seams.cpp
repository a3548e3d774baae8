#include "importers/cgns/Seams.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace gtm::bundled {

using Kind = CgnsDescription::Patch::Kind;

bool Seams::Key::operator<(const Key& other) const
{
    return std::tie(from, to, own, donor) < std::tie(other.from, other.to, other.own, other.donor);
}

Seams::Seams(const CgnsDescription& description) : m_description(description)
{
    std::vector<PatchPlace> connectivities;
    for (std::size_t zone = 0; zone < description.zones.size(); ++zone) {
        m_zones.emplace(description.zones[zone].name, zone);
        for (std::size_t patch = 0; patch < description.zones[zone].patches.size(); ++patch) {
            if (description.zones[zone].patches[patch].kind != Kind::Condition) {
                connectivities.push_back({zone, patch});
            }
        }
    }
    matchByRange(connectivities);
    matchTheOnlyOnes(connectivities);
}

std::optional<PatchPlace> Seams::answerTo(PatchPlace place) const
{
    const auto found = m_answers.find(place);
    return found == m_answers.end() ? std::nullopt : std::optional(found->second);
}

std::optional<std::size_t> Seams::findZone(const std::string& name) const
{
    const auto found = m_zones.find(name);
    return found == m_zones.end() ? std::nullopt : std::optional(found->second);
}

void Seams::matchByRange(const std::vector<PatchPlace>& connectivities)
{
    std::map<Key, std::vector<PatchPlace>> waiting;
    for (const PatchPlace place : connectivities) {
        const CgnsDescription::Patch& patch = m_description.zones[place.zone].patches[place.patch];
        const std::optional<std::size_t> donor = donorOf(place);
        if (!donor || patch.selection.values.empty() || patch.donor.values.empty()) {
            continue;
        }
        Key key{place.zone, *donor, entriesOf(patch.selection, place.zone), entriesOf(patch.donor, *donor)};
        const auto asked = waiting.find({key.to, key.from, key.donor, key.own});
        if (asked == waiting.end()) {
            waiting[std::move(key)].push_back(place);
            continue;
        }
        match(asked->second.front(), place);
        asked->second.erase(asked->second.begin());
        if (asked->second.empty()) {
            waiting.erase(asked);
        }
    }
}

void Seams::matchTheOnlyOnes(const std::vector<PatchPlace>& connectivities)
{
    std::map<std::pair<std::size_t, std::size_t>, std::vector<PatchPlace>> left;
    for (const PatchPlace place : connectivities) {
        const std::optional<std::size_t> donor = donorOf(place);
        const bool general = m_description.zones[place.zone].patches[place.patch].kind == Kind::General;
        if (donor && general && !answerTo(place)) {
            left[{place.zone, *donor}].push_back(place);
        }
    }
    for (const auto& [zones, places] : left) {
        if (zones.first == zones.second && places.size() == 2) {
            match(places.front(), places.back());
        }
        const auto back = left.find({zones.second, zones.first});
        if (zones.first < zones.second && places.size() == 1 && back != left.end() && back->second.size() == 1) {
            match(places.front(), back->second.front());
        }
    }
}

void Seams::match(PatchPlace one, PatchPlace other)
{
    m_answers.emplace(one, other);
    m_answers.emplace(other, one);
}

std::optional<std::size_t> Seams::donorOf(PatchPlace place) const
{
    return findZone(m_description.zones[place.zone].patches[place.patch].donorZone);
}

/// In one order, whatever the order in the file.
Seams::Entries Seams::entriesOf(const CgnsDescription::Selection& selection, std::size_t zone) const
{
    const std::size_t axes = m_description.zones[zone].vertices.size();
    Entries entries;
    for (std::size_t i = 0; i + axes <= selection.values.size(); i += axes) {
        const auto begin = selection.values.begin() + static_cast<std::ptrdiff_t>(i);
        entries.emplace_back(begin, begin + static_cast<std::ptrdiff_t>(axes));
    }
    if (selection.isRange && entries.size() == 2) {
        for (std::size_t axis = 0; axis < axes; ++axis) {
            if (entries[0][axis] > entries[1][axis]) {
                std::swap(entries[0][axis], entries[1][axis]);
            }
        }
    } else {
        std::sort(entries.begin(), entries.end());
    }
    return entries;
}

} // namespace gtm::bundled
