#include "physics/SortByKey.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <random>
#include <utility>
#include <vector>

namespace physics {
namespace {

using Pairs = std::vector<std::pair<std::int64_t, std::size_t>>;

/// The keys with the places that they had, as `sortByKey` leaves them.
Pairs sorted(const std::vector<std::int64_t>& keys)
{
    std::vector<Keyed<std::size_t>> elements;
    for (std::size_t i = 0; i < keys.size(); ++i)
        elements.push_back({keys[i], i});
    sortByKey(elements);
    Pairs result;
    for (const Keyed<std::size_t>& each : elements)
        result.emplace_back(each.key, each.element);
    return result;
}

/// Pairs of key and place in ascending order are what a stable sort gives.
Pairs expected(const std::vector<std::int64_t>& keys)
{
    Pairs result;
    for (std::size_t i = 0; i < keys.size(); ++i)
        result.emplace_back(keys[i], i);
    std::sort(result.begin(), result.end());
    return result;
}

std::vector<std::int64_t> randomKeys(std::size_t count, std::int64_t least, std::int64_t largest)
{
    std::mt19937_64 random(count);
    std::uniform_int_distribution<std::int64_t> key(least, largest);
    std::vector<std::int64_t> keys(count);
    std::generate(keys.begin(), keys.end(), [&] { return key(random); });
    return keys;
}

TEST(SortByKey, nothingStaysNothing) { EXPECT_EQ(sorted({}), Pairs()); }

TEST(SortByKey, fewAndManyElementsComeInTheOrderOfTheirKeysAndEqualOnesStay)
{
    for (const std::size_t count : {1U, 2U, 100U, 255U, 256U, 257U, 5000U})
        for (const std::int64_t range : {0, 1, 50, 2047, 2048, 5000000}) {
            const std::vector<std::int64_t> keys = randomKeys(count, -range / 2, range - range / 2);
            EXPECT_EQ(sorted(keys), expected(keys)) << count << " keys within " << range;
        }
}

TEST(SortByKey, keysMayLieAnywhere)
{
    constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    std::vector<std::int64_t> keys = randomKeys(1000, least, largest);
    keys[10] = largest;
    keys[20] = least;
    keys[30] = least;
    EXPECT_EQ(sorted(keys), expected(keys));
}

} // namespace
} // namespace physics
