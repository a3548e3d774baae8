#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace physics {

/// What stands around the items of a list.
enum class Brackets {
    None = 0,
    Braces = 1,
    Square = 2,
    BracesWithStar = 3, ///< braces, and a "*" behind them
};

/// How a list is written.
struct ListFormat {
    Brackets brackets = Brackets::Braces;
    std::string_view prefix = {}; ///< in front of every line; not counted in the width
    std::size_t width = 75;
    std::string_view separator = ", ";
    bool endsLine = true;
    std::size_t column = 0; ///< how much of the line, behind the prefix, is written already
};

/// Appends a labelled list, wrapped so that no item begins behind the width. Continuation lines are
/// indented to the end of the label; a line may end in the separator, and reaches past the width by
/// its last item.
void appendList(std::string& text, std::string_view label, const std::vector<std::string>& items,
                const ListFormat& format = {});

} // namespace physics
