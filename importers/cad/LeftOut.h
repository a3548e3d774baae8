#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace gtm::bundled {

/// Counts what a file has and the model has not, kind by kind.
class LeftOut {
public:
    /// `one` and `many` are what a single thing and several of the kind are called. Kinds are told in
    /// the order of their first mention.
    void add(std::string_view one, std::string_view many, std::size_t count);

    /// "1 face and 2 edges"; empty when nothing was counted.
    std::string text() const;

private:
    struct Kind {
        std::string one;
        std::string many;
        std::size_t count;
    };

    std::vector<Kind> m_kinds;
};

} // namespace gtm::bundled
