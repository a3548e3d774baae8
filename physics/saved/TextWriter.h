#pragma once

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace physics {

class TypeManager;

/// Ids of objects with the ids of the objects that belong to them; a key of -1 stands for none.
using PairList = std::vector<std::pair<int, int>>;

/// Writes a saved text field by field. It offers the same fields as `TextReader`, so that one description
/// of a record serves both; the labels are for the reader's complaints.
class TextWriter {
public:
    static constexpr bool isReading = false;

    void integer(std::string_view /*label*/, int value)
    {
        separate();
        appendNumber(value);
    }

    template <class E>
    void enumerator(std::string_view label, E value)
    {
        integer(label, static_cast<int>(value));
    }

    void boolean(std::string_view label, bool value) { integer(label, value ? 1 : 0); }

    void count(std::string_view /*label*/, std::size_t value)
    {
        separate();
        appendNumber(static_cast<std::int64_t>(value));
    }

    /// The rest of the line, as it stands.
    void restOfLine(std::string_view /*label*/, std::string_view value)
    {
        separate();
        makeRoom(value.size());
        m_next = std::copy(value.begin(), value.end(), m_next);
    }

    void endLine()
    {
        makeRoom(1);
        *m_next++ = '\n';
        m_isLineBegun = false;
    }

    /// Ascending, each once.
    void idList(std::string_view label, const std::vector<int>& ids)
    {
        count(label, ids.size());
        for (const int id : ids)
            integer(label, id);
        endLine();
    }

    void pairList(std::string_view label, const PairList& pairs)
    {
        count(label, 2 * pairs.size());
        for (const auto& [key, value] : pairs) {
            integer(label, key);
            integer(label, value);
        }
        endLine();
    }

    template <class Record>
    void records(const std::vector<Record>& records, std::size_t /*count*/)
    {
        for (const Record& record : records)
            Record::describe(*this, record);
    }

    /// Records that are made as they are written.
    template <class Records>
    void records(const Records& records, std::size_t /*count*/)
    {
        records.forEach([this](const auto& record) { record.describe(*this, record); });
    }

    void typeTables(const TypeManager& types);

    void begin(const std::size_t& /*position*/) {}

    std::string take() const { return {m_begin.get(), m_next}; }

private:
    static constexpr std::size_t longestNumber = 20; // characters

    void separate()
    {
        makeRoom(1);
        if (m_isLineBegun)
            *m_next++ = ' ';
        m_isLineBegun = true;
    }

    /// Most numbers of a text have one digit.
    void appendNumber(std::int64_t value)
    {
        makeRoom(longestNumber);
        if (value >= 0 && value <= 9)
            *m_next++ = static_cast<char>('0' + value);
        else
            m_next = std::to_chars(m_next, m_end, value).ptr;
    }

    void makeRoom(std::size_t noOfCharacters)
    {
        if (static_cast<std::size_t>(m_end - m_next) < noOfCharacters)
            grow(noOfCharacters);
    }

    void grow(std::size_t noOfCharacters);

    // Plain memory: a string would look at its size and put an end to itself with each field.
    std::unique_ptr<char[]> m_begin;
    char* m_next = nullptr;
    char* m_end = nullptr;
    bool m_isLineBegun = false;
};

} // namespace physics
