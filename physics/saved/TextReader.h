#pragma once

#include "physics/saved/TextWriter.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace physics {

class TypeManager;

/// A piece of a text in quotes for a complaint: short, and on one line whatever it holds.
std::string inQuotes(std::string_view piece);

/// Reads a saved text field by field. The first field that cannot be read fails the reader: everything
/// asked for afterwards is 0 or empty, so that loops end by themselves.
class TextReader {
public:
    static constexpr bool isReading = true;

    /// The text must outlive the reader.
    explicit TextReader(std::string_view text) : m_text(text) {}

    bool hasFailed() const { return !m_complaint.empty(); }

    /// What could not be read, beginning with the line number; empty when nothing failed.
    const std::string& complaint() const { return m_complaint; }

    /// The number of the line that holds a position of the text, from 1.
    std::size_t lineOf(std::size_t position) const;

    void integer(std::string_view label, int& value);

    template <class E>
    void enumerator(std::string_view label, E& value)
    {
        int number = 0;
        integer(label, number);
        value = E(number);
    }

    /// Any number but 0 is true.
    void boolean(std::string_view label, bool& value)
    {
        int number = 0;
        integer(label, number);
        value = number != 0;
    }

    /// A count of things each of which takes at least two bytes; a count that the rest of the text cannot
    /// hold fails at once, so that it costs neither time nor memory.
    void count(std::string_view label, std::size_t& value);

    /// What follows white space, line ends included, up to the end of that line.
    void restOfLine(std::string_view label, std::string& value);

    /// Fields are separated by any white space: line ends matter only to `restOfLine`.
    void endLine() {}

    void idList(std::string_view label, std::vector<int>& ids);
    void pairList(std::string_view label, PairList& pairs);

    /// Reads a number of records, up to the first that fails. Room is made as they come, so that a wrong
    /// number costs no memory.
    template <class Record>
    void records(std::vector<Record>& records, std::size_t count)
    {
        for (std::size_t i = 0; i < count && !hasFailed(); ++i)
            Record::describe(*this, records.emplace_back());
    }

    void typeTables(TypeManager& types);

    /// Notes where a record begins, for later complaints.
    void begin(std::size_t& position)
    {
        skipBlanks();
        position = m_position;
    }

    /// Fails the reader with a complaint about a position.
    void failAt(std::size_t position, std::string_view expected);

    std::size_t bytesLeft() const { return m_text.size() - m_position; }

private:
    void skipBlanks();
    std::string_view tokenAt(std::size_t position) const;

    std::string_view m_text;
    std::size_t m_position = 0;
    std::string m_complaint;
};

} // namespace physics
