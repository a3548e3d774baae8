#pragma once

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace physics::apps {

/// Input that cannot be used: lines that each say what is wrong and where.
class InputError : public std::runtime_error {
public:
    explicit InputError(std::vector<std::string> lines)
        : std::runtime_error(lines.empty() ? "" : lines.front()), m_lines(std::move(lines))
    {}
    explicit InputError(std::string line) : InputError(std::vector<std::string>{std::move(line)}) {}

    const std::vector<std::string>& lines() const { return m_lines; }

private:
    std::vector<std::string> m_lines;
};

} // namespace physics::apps
