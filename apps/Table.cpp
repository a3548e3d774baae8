#include "apps/Table.h"

#include "apps/Output.h"

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <string_view>
#include <utility>

namespace physics::apps {
namespace {

/// The characters of a UTF-8 text: all bytes but those that continue one.
std::size_t widthOf(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

} // namespace

Table::Table(std::vector<std::string> titles) { m_rows.push_back(std::move(titles)); }

void Table::add(std::vector<std::string> row) { m_rows.push_back(std::move(row)); }

void Table::print(const std::string& heading, Output& output) const
{
    if (m_rows.size() == 1) {
        return;
    }
    output.heading(heading);
    std::vector<std::size_t> widths(m_rows.front().size(), 0);
    for (const std::vector<std::string>& row : m_rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], widthOf(row[i]));
        }
    }
    for (const std::vector<std::string>& row : m_rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            line += "  " + row[i] + std::string(widths[i] - widthOf(row[i]), ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        output.out() << line << '\n';
    }
}

} // namespace physics::apps
