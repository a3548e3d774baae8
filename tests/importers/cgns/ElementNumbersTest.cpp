#include "importers/cgns/ElementNumbers.h"

#include "importers/cgns/CgnsReader.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using gtm::bundled::CgnsDescription;
using gtm::bundled::CgnsError;
using gtm::bundled::ElementNumbers;

CgnsDescription::Section section(std::int64_t first, std::int64_t last) { return {"part", 0, first, last, {}, {}, {}}; }

class Numbered : public testing::Test {
protected:
    std::string refusalOf(const CgnsDescription::Section& added, std::size_t count)
    {
        try {
            m_numbers.add(added, count);
        } catch (const CgnsError& error) {
            return error.what();
        }
        return {};
    }

    CgnsDescription::Zone m_zone = [] {
        CgnsDescription::Zone zone;
        zone.name = "box";
        return zone;
    }();
    ElementNumbers m_numbers{m_zone};
};

TEST_F(Numbered, elementsHavePlacesInTheOrderInWhichTheyAreAdded)
{
    m_numbers.add(section(11, 13), 3);
    m_numbers.add(section(1, 2), 2);

    EXPECT_EQ(m_numbers.placeOf(11), 0U);
    EXPECT_EQ(m_numbers.placeOf(13), 2U);
    EXPECT_EQ(m_numbers.placeOf(1), 3U);
    EXPECT_EQ(m_numbers.size(), 5U);
    EXPECT_EQ(m_numbers.last(), 13);
}

TEST_F(Numbered, whatNobodyHasAddedHasNoPlace)
{
    EXPECT_EQ(m_numbers.last(), 0);
    EXPECT_EQ(m_numbers.placeOf(1), std::nullopt);

    m_numbers.add(section(3, 4), 2);

    EXPECT_EQ(m_numbers.placeOf(2), std::nullopt);
    EXPECT_EQ(m_numbers.placeOf(5), std::nullopt);
    EXPECT_EQ(m_numbers.placeOf(-1), std::nullopt);
}

TEST_F(Numbered, numbersThatAreTakenAreRefused)
{
    const std::string taken =
        "the elements \"part\" of the zone \"box\" have numbers that other elements have too; export the file again.";
    m_numbers.add(section(5, 8), 4);

    EXPECT_EQ(refusalOf(section(8, 9), 2), taken);
    EXPECT_EQ(refusalOf(section(4, 5), 2), taken);
    EXPECT_EQ(refusalOf(section(5, 5), 1), taken);
}

TEST_F(Numbered, anotherNumberOfElementsThanTheRangeHasIsRefused)
{
    EXPECT_EQ(refusalOf(section(1, 4), 3), "the elements \"part\" of the zone \"box\" are 3 in number, but their range "
                                           "has 4; export the file again.");
}

} // namespace
