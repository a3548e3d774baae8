#include "physics/report/Table.h"

#include "physics/report/Words.h"

#include <algorithm>
#include <limits>
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

constexpr std::size_t separator = std::numeric_limits<std::size_t>::max();

} // namespace

Table::Table(std::vector<Column> columns) : m_columns(std::move(columns))
{
    for (const Column& column : m_columns)
        m_widths.push_back(widthOf(column.rule));
}

void Table::addHeader()
{
    std::vector<std::string> titles;
    std::vector<std::string> subtitles;
    for (const Column& column : m_columns) {
        titles.push_back(column.title);
        subtitles.push_back(column.subtitle);
    }
    addRow(titles);
    if (std::any_of(subtitles.begin(), subtitles.end(), [](const std::string& title) { return !title.empty(); }))
        addRow(subtitles);
}

void Table::addSeparator() { m_rows.push_back(separator); }

void Table::addRow(const std::vector<std::string>& cells)
{
    m_rows.push_back(m_ends.size());
    for (std::size_t column = 0; column < m_columns.size(); ++column)
        addCell(column < cells.size() ? std::string_view(cells[column]) : std::string_view(), column);
}

void Table::addCell(std::string_view cell, std::size_t column)
{
    m_widths[column] = std::max(m_widths[column], widthOfWidestLine(cell));
    m_text += cell;
    m_ends.push_back(m_text.size());
}

void Table::appendTo(std::string& text, std::string_view prefix, std::size_t gap) const
{
    std::vector<std::string> rules;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        rules.push_back(m_columns[i].rule + std::string(m_widths[i] - widthOf(m_columns[i].rule), '-'));

    std::size_t start = 0; // of the next cell
    for (const std::size_t row : m_rows) {
        if (row == separator) {
            appendRow(text, {rules.begin(), rules.end()}, prefix, gap);
            continue;
        }
        std::vector<std::string_view> cells;
        cells.reserve(m_columns.size());
        for (std::size_t i = 0; i < m_columns.size(); ++i) {
            const std::size_t end = m_ends[row + i];
            cells.push_back(std::string_view(m_text).substr(start, end - start));
            start = end;
        }
        appendRow(text, std::move(cells), prefix, gap);
    }
}

/// In as many lines as the longest cell has.
void Table::appendRow(std::string& text, std::vector<std::string_view> cells, std::string_view prefix,
                      std::size_t gap) const
{
    do {
        text += prefix;
        appendLine(text, cells, gap);
    } while (std::any_of(cells.begin(), cells.end(), [](std::string_view cell) { return !cell.empty(); }));
}

/// Takes one line off every cell.
void Table::appendLine(std::string& text, std::vector<std::string_view>& cells, std::size_t gap) const
{
    std::size_t blanks = 0; // in front of the next text
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string_view line = takeLine(cells[i]);
        if (line.empty()) {
            blanks += m_widths[i] + gap;
            continue;
        }
        const std::size_t free = m_widths[i] - widthOf(line);
        const bool isRight = m_columns[i].align == Align::Right;
        text.append(blanks + (isRight ? free : 0), ' ').append(line);
        blanks = (isRight ? 0 : free) + gap;
    }
    text += '\n';
}

} // namespace physics
