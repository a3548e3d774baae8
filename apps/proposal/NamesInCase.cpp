#include "apps/proposal/NamesInCase.h"

#include <cstddef>
#include <string_view>

namespace physics::apps {
namespace {

bool isControl(char c) { return (c >= 0 && c < ' ') || c == '\x7F'; }

std::string asName(std::string_view said)
{
    std::string name;
    for (std::size_t i = 0; i < said.size(); ++i) {
        const bool isSeparator = said.substr(i, 2) == "::";
        name += isSeparator || isControl(said[i]) ? '_' : said[i];
        i += isSeparator ? 1 : 0;
    }
    const std::size_t first = name.find_first_not_of(' ');
    return first == std::string::npos ? "" : name.substr(first, name.find_last_not_of(' ') - first + 1);
}

} // namespace

std::string NamesInCase::take(const std::string& kind, const std::string& scope, const std::string& said,
                              const std::string& unnamed)
{
    const std::string base = asName(said).empty() ? unnamed : asName(said);
    const std::string key = kind + ' ' + scope;
    std::string name = base;
    while (!m_taken.emplace(key + name, 2).second) {
        name = base + '-' + std::to_string(m_taken.at(key + base)++);
    }
    if (!said.empty() && name != said) {
        m_list.push_back({kind, scope + name, said});
    }
    return name;
}

} // namespace physics::apps
