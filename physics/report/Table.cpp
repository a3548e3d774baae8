#include "physics/report/Table.h"

#include "physics/report/Words.h"

#include <algorithm>
#include <utility>

namespace physics {
namespace {

/// Takes the first line off a text.
std::string_view takeLine(std::string_view& text)
{
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
}

std::size_t widthOfWidestLine(std::string_view text)
{
    std::size_t width = 0;
    while (!text.empty())
        width = std::max(width, widthOf(takeLine(text)));
    return width;
}

} // namespace

Table::Table(std::vector<Column> columns) : m_columns(std::move(columns)) {}

void Table::addHeader()
{
    Row titles;
    Row subtitles;
    for (const Column& column : m_columns) {
        titles.push_back(column.title);
        subtitles.push_back(column.subtitle);
    }
    m_rows.push_back(std::move(titles));
    if (std::any_of(subtitles.begin(), subtitles.end(), [](const std::string& title) { return !title.empty(); }))
        m_rows.push_back(std::move(subtitles));
}

void Table::addSeparator() { m_rows.emplace_back(); }

void Table::addRow(std::vector<std::string> cells)
{
    cells.resize(m_columns.size());
    m_rows.push_back(std::move(cells));
}

std::vector<std::size_t> Table::widths() const
{
    std::vector<std::size_t> widths;
    for (const Column& column : m_columns)
        widths.push_back(widthOf(column.rule));
    for (const Row& row : m_rows)
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], widthOfWidestLine(row[i]));
    return widths;
}

void Table::appendTo(std::string& text, std::string_view prefix, std::size_t gap) const
{
    const std::vector<std::size_t> widths = this->widths();
    Row separator;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        separator.push_back(m_columns[i].rule + std::string(widths[i] - widthOf(m_columns[i].rule), '-'));

    for (const Row& row : m_rows) {
        const Row& cells = row.empty() ? separator : row;
        std::vector<std::string_view> rest(cells.begin(), cells.end());
        do {
            text += prefix;
            appendLine(text, rest, widths, gap);
        } while (std::any_of(rest.begin(), rest.end(), [](std::string_view cell) { return !cell.empty(); }));
    }
}

/// Takes one line off every cell.
void Table::appendLine(std::string& text, std::vector<std::string_view>& cells, const std::vector<std::size_t>& widths,
                       std::size_t gap) const
{
    std::size_t blanks = 0; // in front of the next text
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string_view line = takeLine(cells[i]);
        if (line.empty()) {
            blanks += widths[i] + gap;
            continue;
        }
        const std::size_t free = widths[i] - widthOf(line);
        const bool isRight = m_columns[i].align == Align::Right;
        text.append(blanks + (isRight ? free : 0), ' ').append(line);
        blanks = (isRight ? 0 : free) + gap;
    }
    text += '\n';
}

} // namespace physics
