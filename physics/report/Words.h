#pragma once

#include <array>
#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace gtm {
class Location;
class Region;
} // namespace gtm

namespace physics {

// How reports put values into words: the same in every locale, whatever stream they go to.

/// Stands for an object that is missing.
inline constexpr std::string_view none = "<NONE>";

std::string inWords(int number);
std::string inWords(std::size_t number);

/// With up to six significant digits.
std::string inWords(double number);

/// "true" or "false".
std::string inWords(bool value);

/// "(x, y, z)".
std::string inWords(const std::array<double, 3>& vector);

std::vector<std::string> inWords(const std::vector<int>& numbers);

/// Each in double quotes.
std::vector<std::string> inQuotes(std::vector<std::string> names);

/// "T" or "F".
inline std::string flag(bool value) { return value ? "T" : "F"; }

/// The text of a location, or `none` where an entity has none.
std::string locationText(const gtm::Location* location);

/// The id of an object of ours, or `none`.
template <class T>
std::string idOf(const T* object)
{
    return object == nullptr ? std::string(none) : inWords(object->id());
}

/// The full name of a volume, boundary or interface, or `none`.
template <class T>
std::string nameOf(const T* region)
{
    return region == nullptr ? std::string(none) : region->fullName();
}

template <class T>
std::vector<std::string> idsOf(const std::vector<T*>& objects)
{
    std::vector<std::string> ids;
    ids.reserve(objects.size());
    for (const T* object : objects)
        ids.push_back(idOf(object));
    return ids;
}

/// The id of a region of the location model, or `none`.
std::string regionId(const gtm::Region* region);

template <class T>
std::vector<std::string> regionIds(const std::vector<T*>& regions)
{
    std::vector<std::string> ids;
    ids.reserve(regions.size());
    for (const T* region : regions)
        ids.push_back(regionId(region));
    return ids;
}

template <class T>
std::vector<std::string> namesOf(const std::vector<T*>& regions)
{
    std::vector<std::string> names;
    names.reserve(regions.size());
    for (const T* region : regions)
        names.push_back(nameOf(region));
    return names;
}

/// How many columns a text takes: its code points, not its bytes.
std::size_t widthOf(std::string_view text);

/// The text with blanks behind it, or in front of it; as it is when it is wide enough.
std::string leftAligned(std::string_view text, std::size_t width);
std::string rightAligned(std::string_view text, std::size_t width);

/// Appends one line: a label and its value.
inline void appendLine(std::string& text, std::string_view label, std::string_view value)
{
    text.append(label).append(value).append("\n");
}

/// Writes the text as it is and flushes. The flags, width, fill, precision and locale of the stream
/// neither matter nor change.
void writeOut(std::ostream& stream, const std::string& text);

} // namespace physics
