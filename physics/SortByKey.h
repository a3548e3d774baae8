#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace physics {

/// An element with the number that it is sorted by, so that sorting does not go back to what the number is from.
template <class Element>
struct Keyed {
    std::int64_t key; ///< any number
    Element element;  ///< cheap to copy
};

/// Sorts by key; equal keys stay in their order. Takes time in proportion to the number of elements, as long as their
/// keys lie within a range of some billions: digit by digit, the least significant first.
template <class Element>
void sortByKey(std::vector<Keyed<Element>>& elements)
{
    const auto isLess = [](const auto& left, const auto& right) { return left.key < right.key; };
    constexpr std::size_t fewElements = 256; // for which the digits would cost more
    if (elements.size() < fewElements) {
        std::stable_sort(elements.begin(), elements.end(), isLess);
        return;
    }
    constexpr unsigned bits = 11; // of a digit
    constexpr std::uint64_t noOfDigits = 1U << bits;
    const auto [least, largest] = std::minmax_element(elements.begin(), elements.end(), isLess);
    const auto base = static_cast<std::uint64_t>(least->key);
    const std::uint64_t range = static_cast<std::uint64_t>(largest->key) - base;
    std::vector<Keyed<Element>> sorted(elements.size());
    for (unsigned shift = 0; shift < 64 && range >> shift != 0; shift += bits) {
        const auto digitOf = [base, shift](const Keyed<Element>& each) {
            return ((static_cast<std::uint64_t>(each.key) - base) >> shift) % noOfDigits;
        };
        std::array<std::size_t, noOfDigits> places = {};
        for (const Keyed<Element>& each : elements)
            ++places[digitOf(each)];
        std::size_t place = 0;
        for (std::size_t& each : places) {
            const std::size_t count = each;
            each = place;
            place += count;
        }
        for (const Keyed<Element>& each : elements)
            sorted[places[digitOf(each)]++] = each;
        elements.swap(sorted);
    }
}

} // namespace physics
