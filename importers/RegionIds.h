#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace gtm::bundled {

/// Makes ids of names, by the one rule that all readers state, and remembers which are taken.
class RegionIds {
public:
    /// A sentence for each id that is not what the file says goes to `notes`, which must outlive this object.
    explicit RegionIds(std::vector<std::string>& notes) : m_notes(notes) {}

    /// The name as an id, without regard to the others; empty when it counts as no name.
    static std::string asId(std::string_view name);

    /// `wanted`, or the next free id after it, which is taken from now on. `said` is the name in the
    /// file, or empty when the file gives none; `kind` begins the sentence of a note: "Body".
    std::string take(std::string_view kind, const std::string& said, const std::string& wanted);

    /// Each id that is not what the file says, with what the file says: the way back to its names.
    const std::map<std::string, std::string>& renamed() const { return m_renamed; }

private:
    std::string firstFree(const std::string& id);

    std::vector<std::string>& m_notes;
    std::map<std::string, std::string> m_renamed;

    /// Each taken id with the number to try next for another one of the same name, so that a thousand
    /// equal names do not cost a million look-ups.
    std::map<std::string, int> m_taken;
};

} // namespace gtm::bundled
