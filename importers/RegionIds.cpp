#include "importers/RegionIds.h"

#include "support/InQuotes.h"

namespace gtm::bundled {

using support::inQuotes;

namespace {

bool isControl(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; }

} // namespace

std::string RegionIds::asId(std::string_view name)
{
    constexpr std::string_view blanks = " \t\r\n\v\f";
    const std::size_t begin = name.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    std::string id(name.substr(begin, name.find_last_not_of(blanks) - begin + 1));
    if (id == "NONE")
        return {};
    for (char& c : id)
        if (c == ',' || isControl(c))
            c = '_';
    return id;
}

std::string RegionIds::take(std::string_view kind, const std::string& said, const std::string& wanted)
{
    std::string id = firstFree(wanted);
    if (said.empty() || id == said) {
        return id;
    }
    m_renamed.emplace(id, said);
    m_notes.push_back(std::string(kind) + " " + inQuotes(said) + " is called " + inQuotes(id) + " here, because " +
                      (id == wanted ? "an id has no comma, no control character and no blank at its ends."
                                    : inQuotes(wanted) + " is taken."));
    return id;
}

std::string RegionIds::firstFree(const std::string& id)
{
    const auto [entry, free] = m_taken.emplace(id, 2);
    if (free)
        return id;
    std::string numbered;
    do
        numbered = id + "-" + std::to_string(entry->second++);
    while (!m_taken.emplace(numbered, 2).second);
    return numbered;
}

} // namespace gtm::bundled
