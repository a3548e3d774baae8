#pragma once

#include "importers/cgns/CgnsDescription.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace gtm::bundled {

/// A patch of a description.
struct PatchPlace {
    std::size_t zone;
    std::size_t patch;

    friend bool operator==(const PatchPlace& a, const PatchPlace& b) { return a.zone == b.zone && a.patch == b.patch; }
    friend bool operator<(const PatchPlace& a, const PatchPlace& b)
    {
        return a.zone != b.zone ? a.zone < b.zone : a.patch < b.patch;
    }
};

/// Which connectivities answer each other: the one's range is the donor of the other, and the other way
/// round. Where ranges cannot tell, because the meshes do not fit, it must be the only one between the two zones.
class Seams {
public:
    /// The description must outlive this object.
    explicit Seams(const CgnsDescription& description);

    /// The connectivity that answers; nothing for a condition, and where none or several could.
    std::optional<PatchPlace> answerTo(PatchPlace place) const;

    std::optional<std::size_t> findZone(const std::string& name) const;

private:
    using Entries = std::vector<std::vector<std::int64_t>>;

    /// Two zones, and what is chosen of each.
    struct Key {
        std::size_t from;
        std::size_t to;
        Entries own;
        Entries donor;

        bool operator<(const Key& other) const;
    };

    void matchByRange(const std::vector<PatchPlace>& connectivities);
    void matchTheOnlyOnes(const std::vector<PatchPlace>& connectivities);
    void match(PatchPlace one, PatchPlace other);
    std::optional<std::size_t> donorOf(PatchPlace place) const;
    Entries entriesOf(const CgnsDescription::Selection& selection, std::size_t zone) const;

    const CgnsDescription& m_description;
    std::map<std::string, std::size_t> m_zones;
    std::map<PatchPlace, PatchPlace> m_answers;
};

} // namespace gtm::bundled
