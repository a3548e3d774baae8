#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace physics::apps {

/// The lines about what is wrong with a file. It holds a bounded number of them: finding the place of each
/// costs a walk through the text, and nobody reads the thousandth.
class Complaints {
public:
    static constexpr std::size_t most = 50;

    /// Dropped when there are enough.
    void add(std::string line)
    {
        if (!isFull()) {
            m_lines.push_back(std::move(line));
        }
    }

    bool isFull() const { return m_lines.size() == most; }
    bool isEmpty() const { return m_lines.empty(); }
    const std::vector<std::string>& lines() const { return m_lines; }

private:
    std::vector<std::string> m_lines;
};

} // namespace physics::apps
