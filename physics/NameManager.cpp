#include "physics/NameManager.h"

#include <string_view>

namespace physics {
namespace {

constexpr char substitute = '_';
constexpr char blankSubstitute = '-';
constexpr char symbolPrefix = '!';

constexpr bool contains(std::string_view set, char c) { return set.find(c) != std::string_view::npos; }
constexpr bool isLower(char c) { return c >= 'a' && c <= 'z'; }
constexpr bool isUpper(char c) { return c >= 'A' && c <= 'Z'; }
constexpr bool isLetter(char c) { return isLower(c) || isUpper(c); }
constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

constexpr bool mayBeginSymbol(char c) { return isLower(c) || contains("!$%&*/:<=>?^_~", c); }
constexpr bool mayContinueSymbol(char c) { return mayBeginSymbol(c) || isDigit(c) || contains("+-.", c); }

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\n\v\f\r";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Each UTF-8 character of several bytes becomes one substitute: its lead byte is replaced, its
/// continuation bytes are dropped.
std::string foldedToAscii(std::string_view text)
{
    std::string folded;
    for (const char c : text) {
        const unsigned topBits = static_cast<unsigned char>(c) >> 6U;
        if (topBits != 2)
            folded += topBits == 3 ? substitute : c;
    }
    return folded;
}

char symbolCharacter(char c)
{
    const char lowered = isUpper(c) ? static_cast<char>(c - 'A' + 'a') : c;
    if (lowered == ' ')
        return blankSubstitute;
    return mayContinueSymbol(lowered) ? lowered : substitute;
}

} // namespace

std::string NameManager::normalisePartName(const std::string& name) { return name; }

std::string NameManager::normaliseRegionName(const std::string& name) { return name; }

std::string NameManager::normalisePhysicsName(const std::string& name)
{
    const std::string_view text = trimmed(name);
    std::string result;
    if (text.empty() || !isLetter(text.front()))
        result += 'A';
    for (const char c : text)
        result += isLetter(c) || isDigit(c) || contains(" ._", c) ? c : substitute;
    return result;
}

std::string NameManager::normaliseThreadName(const std::string& name)
{
    std::string symbol = foldedToAscii(name);
    for (char& c : symbol)
        c = symbolCharacter(c);
    if (symbol.empty() || !mayBeginSymbol(symbol.front()))
        symbol.insert(symbol.begin(), symbolPrefix);
    return symbol;
}

} // namespace physics
