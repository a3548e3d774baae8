#pragma once

#include <string>
#include <vector>

namespace physics::apps {

class Output;

/// Rows of text in aligned columns.
class Table {
public:
    explicit Table(std::vector<std::string> titles);

    /// A row has as many cells as there are titles.
    void add(std::vector<std::string> row);

    /// A heading, the titles and the rows, indented by two blanks; nothing when there is no row. No line
    /// ends with a blank.
    void print(const std::string& heading, Output& output) const;

private:
    std::vector<std::vector<std::string>> m_rows;
};

} // namespace physics::apps
