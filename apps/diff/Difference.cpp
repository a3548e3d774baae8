#include "apps/diff/Difference.h"

#include <array>
#include <cstddef>
#include <deque>
#include <unordered_map>
#include <utility>

namespace physics::apps {
namespace {

/// The word for a change of an aspect.
std::string wordFor(const std::string& aspect)
{
    constexpr std::array<std::pair<const char*, const char*>, 5> words = {{
        {"name", "renamed"},
        {"type", "retyped"},
        {"model", "moved"},
        {"volume", "moved"},
        {"location", "relocated"},
    }};
    for (const auto& [changed, word] : words) {
        if (aspect == changed) {
            return word;
        }
    }
    return "changed";
}

Difference about(const Description& object, std::string change)
{
    return {object.kind, object.name, object.of, object.label, std::move(change), "", "", ""};
}

void compare(const Description& first, const Description& second, std::vector<Difference>& result)
{
    for (std::size_t i = 0; i < first.facts.size(); ++i) {
        const Fact& before = first.facts[i];
        const Fact& after = second.facts[i];
        if (before.identity != after.identity) {
            Difference difference = about(first, wordFor(before.aspect));
            difference.aspect = before.aspect;
            difference.from = before.text;
            difference.to = after.text;
            result.push_back(std::move(difference));
        }
    }
}

} // namespace

std::vector<Difference> differences(const std::vector<Description>& first, const std::vector<Description>& second)
{
    std::unordered_map<std::string, std::deque<const Description*>> waiting;
    for (const Description& object : second) {
        waiting[object.kind + " " + object.key].push_back(&object);
    }
    std::vector<Difference> result;
    for (const Description& object : first) {
        auto& candidates = waiting[object.kind + " " + object.key];
        if (candidates.empty()) {
            result.push_back(about(object, "removed"));
        } else {
            compare(object, *candidates.front(), result);
            candidates.pop_front();
        }
    }
    for (const Description& object : second) {
        auto& candidates = waiting[object.kind + " " + object.key];
        if (!candidates.empty() && candidates.front() == &object) {
            result.push_back(about(object, "added"));
            candidates.pop_front();
        }
    }
    return result;
}

std::string lineOf(const Difference& difference)
{
    std::string line = difference.label + ": ";
    if (difference.change == "changed") {
        line += difference.aspect + " ";
    }
    line += difference.change;
    return difference.aspect.empty() ? line : line + " from " + difference.from + " to " + difference.to;
}

} // namespace physics::apps
