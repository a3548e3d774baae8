#include "importers/cad/CadReader.h"

#include "tests/importers/cad/Listing.h"
#include "tests/importers/cad/Shapes.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <thread>

namespace {

using cadtests::box;
using cadtests::brepOf;
using cadtests::compound;
using cadtests::listingOf;
using cadtests::noOfSharedFaces;
using cadtests::TemporaryFile;
using gtm::bundled::CadOptions;
using gtm::bundled::CadResult;
using gtm::bundled::readCad;

struct Counts {
    std::string file;
    CadOptions options;
    std::size_t bodies;
    std::size_t faces;
    std::size_t shared;
};

void PrintTo(const Counts& counts, std::ostream* stream)
{
    *stream << counts.file;
    if (counts.options.imprint)
        *stream << (*counts.options.imprint ? ", imprinted" : ", not imprinted");
}

class PublicFile : public testing::TestWithParam<Counts> {
protected:
    void SetUp() override
    {
        if (!std::filesystem::exists(path()))
            GTEST_SKIP() << "no file " << path();
    }

    static std::filesystem::path path() { return std::filesystem::path(PHYSICS_TEST_DATA) / GetParam().file; }
};

TEST_P(PublicFile, hasTheBodiesAndFacesThatItIsKnownToHave)
{
    const CadResult result = readCad(path(), GetParam().options);

    EXPECT_EQ(result.model->bodies().size(), GetParam().bodies);
    EXPECT_EQ(result.model->faces().size(), GetParam().faces);
    EXPECT_EQ(noOfSharedFaces(*result.model), GetParam().shared);
}

TEST_P(PublicFile, givesTheSameIdsAndNotesOnEveryReading)
{
    const CadResult once = readCad(path(), GetParam().options);
    const CadResult again = readCad(path(), GetParam().options);

    EXPECT_EQ(listingOf(*once.model), listingOf(*again.model));
    EXPECT_EQ(once.notes, again.notes);
}

INSTANTIATE_TEST_SUITE_P(CadReader, PublicFile,
                         testing::Values(Counts{"brep/test_brep_file.brep", {}, 6, 28, 8},
                                         Counts{"brep/test_brep_file.brep", {true}, 6, 28, 8},
                                         Counts{"brep/multi_volume_cylinders.stp", {}, 6, 28, 8},
                                         Counts{"brep/multi_volume_cylinders.stp", {false}, 6, 28, 0},
                                         Counts{"own/box_cylinder_box.brep", {}, 3, 14, 2},
                                         Counts{"own/box_cylinder_box.step", {}, 3, 14, 2},
                                         Counts{"own/box_cylinder_box.step", {false}, 3, 16, 0}));

TEST(CadReader, aBrepFileIsImprintedOnRequestOnly)
{
    const TemporaryFile file(brepOf(compound({box({0, 0, 0}, {1, 1, 1}), box({1, 0, 0}, {2, 1, 1})})));

    EXPECT_EQ(noOfSharedFaces(*readCad(file.path()).model), 0U);
    EXPECT_EQ(noOfSharedFaces(*readCad(file.path(), {true}).model), 1U);
}

TEST(CadReader, theContentTellsTheFormatAndNotTheName)
{
    const TemporaryFile file(brepOf(box({0, 0, 0}, {1, 1, 1})));
    std::filesystem::path renamed = file.path();
    renamed += ".step";
    std::filesystem::copy_file(file.path(), renamed);

    EXPECT_EQ(readCad(renamed).model->faces().size(), 6U);
    std::filesystem::remove(renamed);
}

TEST(CadReader, nothingIsPrinted)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();

    readCad(PHYSICS_EXAMPLES "/heat_exchanger.step");
    const TemporaryFile damaged("CASCADE Topology V1\nLocations 1\n7 1\n");
    cadtests::messageOf([&] { readCad(damaged.path()); });

    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(CadReader, threadsMayReadAtTheSameTime)
{
    std::string listings[2];
    std::thread first([&] { listings[0] = listingOf(*readCad(PHYSICS_EXAMPLES "/heat_exchanger.step").model); });
    std::thread second([&] { listings[1] = listingOf(*readCad(PHYSICS_EXAMPLES "/heat_exchanger.step").model); });
    first.join();
    second.join();

    EXPECT_EQ(listings[0], listings[1]);
    EXPECT_FALSE(listings[0].empty());
}

} // namespace
