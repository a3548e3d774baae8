// Whatever a set-up consists of, it comes back from its text; and whatever happened to the text, what comes
// back is sound or nothing is lost.

#include "physics/Physics.h"
#include "tests/physics/saved/Answers.h"
#include "tests/physics/saved/Geometry.h"
#include "tests/physics/saved/RandomSetUp.h"
#include "tests/physics/saved/Texts.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <cstddef>
#include <cstdlib>
#include <string>
#include <vector>

namespace physics {
namespace {

/// RapidCheck takes its settings from the environment, at the first property; what a user gives stays.
const bool isConfigured = setenv("RC_PARAMS", "seed=5 max_success=150", 0) == 0;

/// Up to 600 numbers, about 100 changes.
rc::Gen<std::vector<unsigned>> rows()
{
    const auto number = rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0U, 5040U));
    return rc::gen::scale(6, rc::gen::container<std::vector<unsigned>>(number));
}

/// A text with a few bytes lost, doubled or exchanged.
std::string damaged(std::string text, const std::vector<unsigned>& numbers)
{
    static const std::string bytes("0123456789- \n,\0a", 16);
    for (std::size_t i = 0; i + 2 < numbers.size() && !text.empty(); i += 3) {
        const std::size_t position = numbers[i] * 7919U % text.size();
        switch (numbers[i + 1] % 3) {
        case 0:
            text.erase(position, 1 + numbers[i + 2] % 4);
            break;
        case 1:
            text.insert(position, text.substr(position, 1 + numbers[i + 2] % 9));
            break;
        default:
            text[position] = bytes[numbers[i + 2] % bytes.size()];
        }
    }
    return text;
}

/// The first line in which two texts differ, or nothing.
std::string firstDifference(const std::string& actual, const std::string& expected)
{
    const std::vector<std::string> left = linesOf(actual);
    const std::vector<std::string> right = linesOf(expected);
    for (std::size_t i = 0; i < left.size() && i < right.size(); ++i)
        if (left[i] != right[i])
            return left[i] + " instead of " + right[i];
    return left.size() == right.size() ? "" : "another number of lines";
}

TEST(RandomSetUps, comeBackFromTheirTexts)
{
    const Geometry geometry;
    EXPECT_TRUE(rc::check([&geometry] {
        Physics physics(geometry.model(), false);
        RC_ASSERT(physics.restore(emptyText(0)));
        RandomSetUp(physics, geometry, *rows());
        const std::string text = physics.serialise();
        const std::string answers = answersOf(physics);
        RC_ASSERT(physics.serialise() == text); // asking changes nothing

        Physics other(geometry.model(), true);
        RC_ASSERT(other.checkSerialised(text) == std::vector<std::string>());
        RC_ASSERT(other.restore(text));
        RC_ASSERT(other.serialise() == text);
        RC_ASSERT(firstDifference(answersOf(other), answers) == "");
    }));
}

TEST(RandomSetUps, areRefusedOrSoundWhenTheirTextIsDamaged)
{
    const Geometry geometry;
    EXPECT_TRUE(rc::check([&geometry] {
        Physics physics(geometry.model(), false);
        RC_ASSERT(physics.restore(emptyText(0)));
        RandomSetUp(physics, geometry, *rows());
        const std::string text = physics.serialise();
        const auto number = rc::gen::resize(rc::kNominalSize, rc::gen::inRange(0U, 5040U));
        const auto strokes = *rc::gen::container<std::vector<unsigned>>(3 * *rc::gen::inRange(1, 4), number);
        const std::string other = damaged(text, strokes);

        const bool isAccepted = physics.checkSerialised(other).empty();
        RC_ASSERT(physics.restore(other) == isAccepted);
        const std::string after = physics.serialise();
        RC_ASSERT(isAccepted || after == text);
        RC_ASSERT(physics.restore(after));
        RC_ASSERT(physics.serialise() == after);
    }));
}

} // namespace
} // namespace physics
