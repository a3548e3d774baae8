#include "physics/report/Words.h"

#include "gtm/Location.h"
#include "gtm/Region.h"

#include <algorithm>
#include <charconv>

namespace physics {
namespace {

template <class... Arguments>
std::string converted(Arguments... arguments)
{
    std::array<char, 32> characters;
    const auto result = std::to_chars(characters.data(), characters.data() + characters.size(), arguments...);
    return {characters.data(), result.ptr};
}

} // namespace

std::string inWords(int number) { return converted(number); }
std::string inWords(std::size_t number) { return converted(number); }
std::string inWords(double number) { return converted(number, std::chars_format::general, 6); }
std::string inWords(bool value) { return value ? "true" : "false"; }

std::string inWords(const std::array<double, 3>& vector)
{
    return "(" + inWords(vector[0]) + ", " + inWords(vector[1]) + ", " + inWords(vector[2]) + ")";
}

std::vector<std::string> inWords(const std::vector<int>& numbers)
{
    std::vector<std::string> words;
    words.reserve(numbers.size());
    for (const int number : numbers)
        words.push_back(inWords(number));
    return words;
}

std::vector<std::string> inQuotes(std::vector<std::string> names)
{
    for (std::string& name : names)
        name = '"' + name + '"';
    return names;
}

std::string locationText(const gtm::Location* location)
{
    return location == nullptr ? std::string(none) : location->locationString(false);
}

std::string regionId(const gtm::Region* region) { return region == nullptr ? std::string(none) : region->id(); }

std::size_t widthOf(std::string_view text)
{
    const auto continuesCodePoint = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; };
    return text.size() - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), continuesCodePoint));
}

std::string leftAligned(std::string_view text, std::size_t width)
{
    const std::size_t own = widthOf(text);
    return std::string(text) + std::string(own < width ? width - own : 0, ' ');
}

std::string rightAligned(std::string_view text, std::size_t width)
{
    const std::size_t own = widthOf(text);
    return std::string(own < width ? width - own : 0, ' ') + std::string(text);
}

void writeOut(std::ostream& stream, const std::string& text)
{
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
    stream.flush();
}

} // namespace physics
