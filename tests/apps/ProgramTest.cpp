#include "tests/apps/ProgramRun.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Program, aGoodCaseIsBuiltAndListed)
{
    const ProgramRun run("build tests/data/good-cases/channel.json");

    EXPECT_TRUE(golden::matches(run.out, "build-channel.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
}

TEST(Program, aCaseWithEverythingIsBuiltAndListed)
{
    const ProgramRun run("build tests/data/good-cases/everything.json");

    EXPECT_TRUE(golden::matches(run.out, "build-everything.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
}

TEST(Program, refusalsAreToldBehindWhatWasMade)
{
    const ProgramRun run("build tests/data/bad-cases/refused/boundaries-overlap.json");

    EXPECT_TRUE(golden::matches(run.out, "build-boundaries-overlap.txt"));
    EXPECT_TRUE(golden::matches(run.err, "build-boundaries-overlap-errors.txt"));
    EXPECT_EQ(run.code, 1);
}

TEST(Program, aFileThatCannotBeReadMakesNoOutput)
{
    const ProgramRun run("build tests/data/bad-cases/shape/several-mistakes.json");

    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(golden::matches(run.err, "build-several-mistakes-errors.txt"));
    EXPECT_EQ(run.code, 2);
}

TEST(Program, aMissingVerbIsAMistakeOfTheCaller) { EXPECT_EQ(ProgramRun("").code, 2); }

TEST(Program, aFileGetsNoColors)
{
    const ProgramRun run("build tests/data/good-cases/channel.json");

    EXPECT_EQ(run.out.find('\x1B'), std::string::npos);
}

TEST(Program, twoRunsWriteTheSameBytes)
{
    const std::string arguments = "build tests/data/good-cases/everything.json";

    EXPECT_EQ(ProgramRun(arguments).out, ProgramRun(arguments).out);
}

} // namespace
