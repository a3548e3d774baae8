#pragma once

#include <locale>
#include <sstream>
#include <string>
#include <vector>

// Pieces of saved texts, and what takes texts apart.

namespace physics {

/// The section of a text that says what is allowed where, as every set-up writes it.
inline const std::string typeTables =
    "0\n"
    "3\n"
    "4 0 7 14 17\n"
    "19 1 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17\n"
    "19 2 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17\n"
    "5\n"
    "21 0 3 0 0 1 13 0 1 2 3 4 5 6 7 9 11 12 13 17 2 0\n"
    "38 1 3 0 2 7 17 1 14 0 1 2 3 4 5 6 7 9 10 11 12 13 17 2 14 0 1 2 3 4 5 6 7 9 10 11 12 "
    "13 17\n"
    "22 2 3 0 0 1 14 0 1 2 3 4 5 6 7 9 10 11 12 13 17 2 0\n"
    "22 3 3 0 0 1 14 0 1 2 3 4 5 6 7 9 10 11 12 13 17 2 0\n"
    "11 4 3 0 1 7 1 1 7 2 1 7\n"
    "1\n"
    "2 0 7\n"
    "26 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26\n"
    "6 0 0 1 1 2 2\n";

/// The text of a set-up without objects, with all id counters at `counter`.
inline std::string emptyText(int counter)
{
    const std::string line = std::to_string(counter) + "\n";
    return "0\n3\n0 0\n0\n1\n" + typeTables + "0\n0\n0\n0\n0\n0\n-1\n0\n0\n" + line + line + line + line + line + line;
}

inline std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

inline std::string joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

/// As long as this lives, the locale of the process puts a comma between any two digits.
class GroupedDigits {
public:
    GroupedDigits() : m_before(std::locale::global(std::locale(std::locale::classic(), new Grouping))) {}
    ~GroupedDigits() { std::locale::global(m_before); }
    GroupedDigits(const GroupedDigits&) = delete;
    GroupedDigits& operator=(const GroupedDigits&) = delete;

private:
    struct Grouping : std::numpunct<char> {
        char do_thousands_sep() const override { return ','; }
        std::string do_grouping() const override { return "\1"; }
    };

    std::locale m_before;
};

} // namespace physics
