#include "support/InWords.h"

#include <charconv>

namespace gtm::support {

std::string inWords(double value)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, 9);
    return {text.data(), end.ptr};
}

std::string inWords(const std::array<double, 3>& vector)
{
    return "(" + inWords(vector[0]) + ", " + inWords(vector[1]) + ", " + inWords(vector[2]) + ")";
}

} // namespace gtm::support
