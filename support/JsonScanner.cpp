#include "support/JsonScanner.h"

#include <nlohmann/json.hpp>

#include <vector>

namespace gtm::support {
namespace {

/// A JSON pointer writes "/" as "~1" and "~" as "~0".
std::string unescaped(std::string_view segment)
{
    std::string text;
    for (std::size_t i = 0; i < segment.size(); ++i) {
        if (segment[i] == '~' && i + 1 < segment.size()) {
            text += segment[++i] == '1' ? '/' : '~';
        } else {
            text += segment[i];
        }
    }
    return text;
}

std::string escaped(std::string_view key)
{
    std::string segment;
    for (const char c : key) {
        if (c == '~' || c == '/') {
            segment += c == '~' ? "~0" : "~1";
        } else {
            segment += c;
        }
    }
    return segment;
}

} // namespace

JsonScanner::Offsets JsonScanner::find(std::string_view pointer)
{
    m_at = 0;
    skipBlanks();
    Offsets found{m_at, m_at};
    while (!pointer.empty()) {
        const std::string_view rest = pointer.substr(1);
        const std::string_view segment = rest.substr(0, rest.find('/'));
        found = enter(unescaped(segment));
        pointer = rest.substr(segment.size());
    }
    return found;
}

JsonScanner::Offsets JsonScanner::enter(std::string_view segment)
{
    const bool isObject = m_text[m_at] == '{';
    for (std::size_t index = 0;; ++index) {
        ++m_at; // the opening bracket, or the comma behind the value before
        skipBlanks();
        Offsets here{m_at, m_at};
        std::string key;
        if (isObject) {
            key = readKey();
            here.value = m_at;
        } else {
            key = std::to_string(index);
        }
        if (key == segment) {
            return here;
        }
        skipValue();
        skipBlanks();
    }
}

void JsonScanner::walk(const std::function<void(const std::string& pointer, std::size_t offset)>& visit)
{
    struct Open {
        bool isObject;
        std::size_t lengthOfPointer;
        std::size_t noOfValues;
    };
    std::vector<Open> open;
    std::string pointer;
    m_at = 0;
    skipBlanks();
    do {
        visit(pointer, m_at);
        if (m_text[m_at] == '{' || m_text[m_at] == '[') {
            open.push_back({m_text[m_at] == '{', pointer.size(), 0});
            ++m_at;
        } else {
            skipValue();
        }
        // Go on to the next value, over the ends of all that end here.
        for (bool isAtValue = false; !isAtValue && !open.empty();) {
            pointer.resize(open.back().lengthOfPointer);
            skipBlanks();
            if (m_text[m_at] == '}' || m_text[m_at] == ']') {
                ++m_at;
                open.pop_back();
            } else if (m_text[m_at] == ',') {
                ++m_at;
            } else {
                const std::size_t index = open.back().noOfValues++;
                pointer += "/" + (open.back().isObject ? escaped(readKey()) : std::to_string(index));
                isAtValue = true;
            }
        }
    } while (!open.empty());
}

/// Told by its place, not by the colon behind it, which may be missing.
std::size_t JsonScanner::findKey(std::size_t number)
{
    std::string open; // the brackets around the place
    bool isKeyNext = false;
    for (m_at = 0;;) {
        const char c = m_text[m_at];
        if (c == '"') {
            if (isKeyNext && --number == 0) {
                return m_at;
            }
            isKeyNext = false;
            readString();
            continue;
        }
        if (c == '{' || c == '[') {
            open += c;
        } else if (c == '}' || c == ']') {
            open.pop_back();
        }
        if (c == '{' || c == ',') {
            isKeyNext = open.back() == '{';
        }
        ++m_at;
    }
}

std::string JsonScanner::readKey()
{
    std::string key = nlohmann::json::parse(readString()).get<std::string>();
    skipBlanks();
    ++m_at; // the colon
    skipBlanks();
    return key;
}

std::string_view JsonScanner::readString()
{
    const std::size_t start = m_at++;
    while (m_text[m_at] != '"') {
        m_at += m_text[m_at] == '\\' ? 2 : 1;
    }
    ++m_at;
    return m_text.substr(start, m_at - start);
}

void JsonScanner::skipValue()
{
    std::size_t depth = 0;
    do {
        const char c = m_text[m_at];
        if (c == '"') {
            readString();
        } else if (c == '{' || c == '[') {
            ++depth;
            ++m_at;
        } else if (c == '}' || c == ']') {
            --depth;
            ++m_at;
        } else if (depth > 0) {
            ++m_at;
        } else {
            m_at = m_text.find_first_of(" \t\r\n,]}", m_at);
        }
    } while (depth > 0);
}

void JsonScanner::skipBlanks()
{
    while (m_at < m_text.size() && std::string_view(" \t\r\n").find(m_text[m_at]) != std::string_view::npos) {
        ++m_at;
    }
}

} // namespace gtm::support
