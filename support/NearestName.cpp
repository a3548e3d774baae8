#include "support/NearestName.h"

#include <algorithm>
#include <cstddef>

namespace gtm::support {
namespace {

/// What a different capital costs, and what any other difference costs.
constexpr std::size_t capital = 1;
constexpr std::size_t letter = 10;

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::size_t replacing(char a, char b) { return a == b ? 0 : lower(a) == lower(b) ? capital : letter; }

/// Optimal string alignment: single letters replaced, left out, added, and neighbours swapped.
std::size_t distance(std::string_view a, std::string_view b)
{
    const std::size_t width = b.size() + 1;
    std::vector<std::size_t> table((a.size() + 1) * width);
    auto cell = [&table, width](std::size_t i, std::size_t j) -> std::size_t& { return table[i * width + j]; };
    for (std::size_t i = 0; i <= a.size(); ++i) {
        cell(i, 0) = i * letter;
    }
    for (std::size_t j = 0; j <= b.size(); ++j) {
        cell(0, j) = j * letter;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        for (std::size_t j = 1; j <= b.size(); ++j) {
            cell(i, j) = std::min(
                {cell(i - 1, j) + letter, cell(i, j - 1) + letter, cell(i - 1, j - 1) + replacing(a[i - 1], b[j - 1])});
            if (i > 1 && j > 1 && lower(a[i - 1]) == lower(b[j - 2]) && lower(a[i - 2]) == lower(b[j - 1])) {
                cell(i, j) = std::min(cell(i, j), cell(i - 2, j - 2) + letter);
            }
        }
    }
    return cell(a.size(), b.size());
}

} // namespace

std::optional<std::string> nearestName(std::string_view wanted, const std::vector<std::string>& known)
{
    const std::string* best = nullptr;
    std::size_t smallest = 0;
    for (const std::string& name : known) {
        const std::size_t longer = std::max(wanted.size(), name.size());
        const std::size_t shorter = std::min(wanted.size(), name.size());
        const std::size_t limit = longer * letter / 3;
        if ((longer - shorter) * letter > limit) {
            continue;
        }
        const std::size_t d = distance(wanted, name);
        if (d <= limit && (best == nullptr || d < smallest)) {
            best = &name;
            smallest = d;
        }
    }
    return best == nullptr ? std::nullopt : std::optional(*best);
}

std::string hintForName(std::string_view wanted, const std::vector<std::string>& known)
{
    constexpr std::size_t few = 12;
    if (const std::optional<std::string> near = nearestName(wanted, known)) {
        return "; did you mean \"" + *near + "\"?";
    }
    if (known.empty() || known.size() > few) {
        return ".";
    }
    std::string hint = known.size() == 1 ? "; the only known one is " : "; known are ";
    for (const std::string& name : known) {
        hint += (&name == &known.front() ? "\"" : ", \"") + name + "\"";
    }
    return hint + ".";
}

} // namespace gtm::support
