#include "importers/cgns/ZoneNumbers.h"

#include <gtest/gtest.h>

namespace {

using gtm::bundled::ZoneNumbers;

TEST(ZoneNumbers, whatTheFileSaysIsKeptAndTheRestGetsTheNextFreeNumber)
{
    ZoneNumbers numbers;
    numbers.reserve(2);
    numbers.reserve(std::nullopt);
    numbers.reserve(3);

    EXPECT_EQ(numbers.take(std::nullopt), 1);
    EXPECT_EQ(numbers.take(3), 3);
    EXPECT_EQ(numbers.take(std::nullopt), 4);
    EXPECT_EQ(numbers.take(2), 2);
    EXPECT_EQ(numbers.take(std::nullopt), 5);
}

} // namespace
