#include "locationmodel/Pattern.h"

#include <algorithm>
#include <cstddef>

namespace gtm::bundled {
namespace {

/// Where the character after the one at `at` begins.
std::size_t nextCharacter(std::string_view text, std::size_t at)
{
    do {
        ++at;
    } while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U);
    return at;
}

} // namespace

bool Pattern::hasWildcard() const
{
    return std::any_of(m_tokens.begin(), m_tokens.end(),
                       [](const Token& token) { return token.kind == Kind::AnyRun || token.kind == Kind::AnyOne; });
}

std::string Pattern::literalPrefix() const
{
    std::string prefix;
    for (const Token& token : m_tokens) {
        if (token.kind == Kind::AnyRun || token.kind == Kind::AnyOne) {
            break;
        }
        prefix += token.character;
    }
    return prefix;
}

bool Pattern::matches(std::string_view text) const
{
    // Go forward greedily; on a mismatch let the last `*` take one character more.
    const std::size_t none = m_tokens.size();
    std::size_t token = 0;
    std::size_t at = 0;
    std::size_t lastRun = none;
    std::size_t runEnd = 0;
    while (at < text.size()) {
        if (token < m_tokens.size() && m_tokens[token].kind == Kind::AnyRun) {
            lastRun = token++;
            runEnd = at;
        } else if (token < m_tokens.size() && m_tokens[token].kind == Kind::AnyOne) {
            ++token;
            at = nextCharacter(text, at);
        } else if (token < m_tokens.size() && m_tokens[token].character == text[at]) {
            ++token;
            ++at;
        } else if (lastRun != none) {
            token = lastRun + 1;
            runEnd = nextCharacter(text, runEnd);
            at = runEnd;
        } else {
            return false;
        }
    }
    return std::all_of(m_tokens.begin() + static_cast<std::ptrdiff_t>(token), m_tokens.end(),
                       [](const Token& rest) { return rest.kind == Kind::AnyRun; });
}

std::vector<std::pair<Pattern, Pattern>> Pattern::divisions() const
{
    std::vector<std::pair<Pattern, Pattern>> pairs;
    for (auto slash = m_tokens.begin(); slash != m_tokens.end(); ++slash) {
        if (slash->kind == Kind::Separator) {
            auto& [before, behind] = pairs.emplace_back();
            before.m_tokens.assign(m_tokens.begin(), slash);
            behind.m_tokens.assign(slash + 1, m_tokens.end());
        }
    }
    return pairs;
}

} // namespace gtm::bundled
