#include "apps/Output.h"

#include "tests/apps/ToolRun.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace {

using physics::apps::Output;

/// What reaches the output itself of a text that is paged.
std::string pagedBy(const std::string& pager, const std::string& text)
{
    std::ostringstream out;
    Output output(out, out, false, false);
    output.setPager(pager);
    output.page(text);
    return out.str();
}

TEST(Output, withoutPagerATextIsWrittenAsItIs) { EXPECT_EQ(pagedBy("", "a\nb\n"), "a\nb\n"); }

TEST(Output, aPagerGetsTheWholeText)
{
    const TemporaryFile screen("screen.txt", "");
    const std::string text(300000, 'x');

    EXPECT_EQ(pagedBy("cat >'" + screen.path() + "'", text), "");
    EXPECT_EQ(contentOf(screen.path()), text);
}

TEST(Output, aPagerThatIsLeftEarlyEndsNothingElse) { EXPECT_EQ(pagedBy("true", std::string(300000, 'x')), ""); }

TEST(Output, aPagerThatCannotBeRunIsDoneWithout)
{
    EXPECT_EQ(pagedBy("no-such-pager 2>/dev/null", "a\n"), "a\n");
    EXPECT_EQ(pagedBy("2>/dev/null; exec /etc/passwd 2>/dev/null", "a\n"), "a\n");
}

} // namespace
