#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace physics {

/// A table for people: every column is as wide as its widest entry, so that nothing is cut off. A cell
/// may have several lines.
class Table {
public:
    enum class Align { Left, Right };

    struct Column {
        std::string title;
        Align align = Align::Left;
        std::string subtitle = {}; ///< on a second line of the header, which is left out when all are empty
        std::string rule = {};     ///< how its piece of a separator begins; hyphens fill the rest
    };

    explicit Table(std::vector<Column> columns);

    void addHeader();

    /// Adds a line of the rules of the columns.
    void addSeparator();

    /// Adds a row; missing cells at the end are empty.
    void addRow(const std::vector<std::string>& cells);

    /// Appends what was added, each line with the prefix in front, and so many blanks between two columns.
    /// No line ends in blanks of the table.
    void appendTo(std::string& text, std::string_view prefix, std::size_t gap = 2) const;

private:
    void addCell(std::string_view cell, std::size_t column);
    void appendRow(std::string& text, std::vector<std::string_view> cells, std::string_view prefix,
                   std::size_t gap) const;
    void appendLine(std::string& text, std::vector<std::string_view>& cells, std::size_t gap) const;

    const std::vector<Column> m_columns;
    std::vector<std::size_t> m_widths; // of the columns
    std::string m_text;                // of all cells, one behind the other: they may be millions
    std::vector<std::size_t> m_ends;   // of each cell in it
    std::vector<std::size_t> m_rows;   // the index of the first cell of each row, or `separator`
};

} // namespace physics
