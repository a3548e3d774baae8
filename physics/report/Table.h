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
    void addRow(std::vector<std::string> cells);

    /// Appends what was added, each line with the prefix in front, and so many blanks between two columns.
    /// No line ends in blanks of the table.
    void appendTo(std::string& text, std::string_view prefix, std::size_t gap = 2) const;

private:
    using Row = std::vector<std::string>; // a separator is a row without cells

    std::vector<std::size_t> widths() const;
    void appendLine(std::string& text, std::vector<std::string_view>& cells, const std::vector<std::size_t>& widths,
                    std::size_t gap) const;

    std::vector<Column> m_columns;
    std::vector<Row> m_rows;
};

} // namespace physics
