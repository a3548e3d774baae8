#include "apps/ChildProcess.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <csignal>
#include <string>

namespace {

using physics::apps::answerOfChild;
using physics::apps::ChildDied;

TEST(ChildProcess, aLongAnswerArrivesWhole)
{
    const std::string text(3'000'000, 'x');

    EXPECT_EQ(answerOfChild([&text] { return text + '\0'; }), text + '\0');
}

TEST(ChildProcess, whatTheChildChangesStaysThere)
{
    int number = 1;
    const std::string answer = answerOfChild([&number] { return std::to_string(++number); });

    EXPECT_EQ(answer, "2");
    EXPECT_EQ(number, 1);
}

TEST(ChildProcess, aCrashIsToldByItsSignal)
{
    try {
        answerOfChild([]() -> std::string {
            std::signal(SIGSEGV, SIG_DFL); // a sanitizer would make a report of it
            std::raise(SIGSEGV);
            return "never";
        });
        FAIL() << "no crash";
    } catch (const ChildDied& how) {
        EXPECT_STREQ(how.what(), "signal 11");
    }
}

TEST(ChildProcess, anEndWithoutAnAnswerIsToldByItsCode)
{
    try {
        answerOfChild([]() -> std::string { _exit(7); });
        FAIL() << "no end";
    } catch (const ChildDied& how) {
        EXPECT_STREQ(how.what(), "exit code 7");
    }
}

} // namespace
