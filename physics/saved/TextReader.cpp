#include "physics/saved/TextReader.h"

#include <algorithm>
#include <charconv>

namespace physics {
namespace {

constexpr std::string_view blanks = " \t\n\v\f\r";
constexpr std::size_t longestQuote = 200;

/// Whether a character of several bytes in UTF-8 goes on here.
bool isInsideCharacter(std::string_view text, std::size_t position)
{
    return position < text.size() && (static_cast<unsigned char>(text[position]) & 0xC0U) == 0x80U;
}

} // namespace

std::string inQuotes(std::string_view piece)
{
    std::size_t end = std::min(piece.size(), longestQuote);
    while (end > 0 && isInsideCharacter(piece, end))
        --end;
    std::string text = "\"";
    for (const char c : piece.substr(0, end))
        text += static_cast<unsigned char>(c) < ' ' ? '?' : c;
    return text + (end < piece.size() ? "...\"" : "\"");
}

std::size_t TextReader::lineOf(std::size_t position) const
{
    const auto end = m_text.begin() + static_cast<std::ptrdiff_t>(std::min(position, m_text.size()));
    return 1 + static_cast<std::size_t>(std::count(m_text.begin(), end, '\n'));
}

void TextReader::skipBlanks() { m_position = std::min(m_text.find_first_not_of(blanks, m_position), m_text.size()); }

std::string_view TextReader::tokenAt(std::size_t position) const
{
    const std::size_t end = std::min(m_text.find_first_of(blanks, position), m_text.size());
    return m_text.substr(position, end - position);
}

void TextReader::failAt(std::size_t position, std::string_view expected)
{
    if (hasFailed())
        return;
    const std::string_view found = tokenAt(position);
    m_complaint = std::to_string(lineOf(position)) + ": expected " + std::string(expected) + ", found " +
                  (found.empty() ? "the end of the text" : inQuotes(found));
}

void TextReader::integer(std::string_view label, int& value)
{
    value = 0;
    if (hasFailed())
        return;
    skipBlanks();
    const std::string_view token = tokenAt(m_position);
    const std::size_t sign = token.size() > 1 && token[0] == '+' && token[1] != '-' ? 1 : 0;
    const char* const end = token.data() + token.size();
    const std::from_chars_result result = std::from_chars(token.data() + sign, end, value);
    if (token.empty() || result.ec != std::errc() || result.ptr != end) {
        value = 0;
        failAt(m_position, std::string(label) + " (a whole number of 32 bits)");
        return;
    }
    m_position += token.size();
}

void TextReader::count(std::string_view label, std::size_t& value)
{
    value = 0;
    std::size_t start = 0;
    begin(start);
    int number = 0;
    integer(label, number);
    if (hasFailed())
        return;
    if (number < 0 || static_cast<std::size_t>(number) > bytesLeft() / 2)
        failAt(start, std::string(label) + " (a count that the rest of the text can hold)");
    else
        value = static_cast<std::size_t>(number);
}

void TextReader::restOfLine(std::string_view label, std::string& value)
{
    value.clear();
    if (hasFailed())
        return;
    skipBlanks();
    if (m_position == m_text.size()) {
        failAt(m_position, label);
        return;
    }
    const std::size_t end = std::min(m_text.find('\n', m_position), m_text.size());
    value = m_text.substr(m_position, end - m_position);
    m_position = end;
}

void TextReader::idList(std::string_view label, std::vector<int>& ids)
{
    std::size_t size = 0;
    count(label, size);
    ids.assign(size, 0);
    for (int& id : ids)
        integer(label, id);
    if (hasFailed())
        ids.clear();
}

void TextReader::pairList(std::string_view label, PairList& pairs)
{
    std::size_t start = 0;
    begin(start);
    std::size_t size = 0;
    count(label, size);
    if (size % 2 != 0)
        failAt(start, std::string(label) + " (an even count, for pairs)");
    pairs.assign(size / 2, {});
    for (auto& [key, value] : pairs) {
        integer(label, key);
        integer(label, value);
    }
    if (hasFailed())
        pairs.clear();
}

} // namespace physics
