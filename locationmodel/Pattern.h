#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace gtm::bundled {

/// The name in a term of a location: literal characters, wildcards, and slashes at which it may be
/// divided into a path.
class Pattern {
public:
    enum class Kind : char { Literal, AnyRun, AnyOne, Separator };

    void add(Kind kind, char character) { m_tokens.push_back({kind, character}); }

    bool isEmpty() const { return m_tokens.empty(); }
    bool hasWildcard() const;

    /// All of the text when there is no wildcard, else what stands in front of the first one.
    std::string literalPrefix() const;

    /// True when the pattern covers the whole of `text`. `*` stands for any run of characters, slashes
    /// too, `?` for one UTF-8 character.
    bool matches(std::string_view text) const;

    /// What stands before and behind each slash, one pair a slash, from left to right.
    std::vector<std::pair<Pattern, Pattern>> divisions() const;

private:
    struct Token {
        Kind kind;
        char character;
    };

    std::vector<Token> m_tokens;
};

} // namespace gtm::bundled
