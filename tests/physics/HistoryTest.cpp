#include "tests/physics/History.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

// Whatever is done to a set-up in whatever order, it agrees with a plain model of it. The same steps run on
// each location model. The normal run draws the same short histories every time; PHYSICS_HISTORIES asks for
// another number of longer ones, new in each run (scripts/soak).

namespace rc {

template <>
struct Arbitrary<Step> {
    static Gen<Step> arbitrary()
    {
        const auto number = below(1U << 12U);
        return gen::build<Step>(gen::set(&Step::operation, below(History::noOfOperations())),
                                gen::set(&Step::a, number), gen::set(&Step::b, number), gen::set(&Step::c, number),
                                gen::set(&Step::d, number));
    }

private:
    /// From the whole range, also in small histories.
    static Gen<unsigned> below(unsigned limit) { return gen::resize(kNominalSize, gen::inRange(0U, limit)); }
};

} // namespace rc

namespace {

/// RapidCheck takes its settings from the environment, at the first property; what a user gives stays.
const bool isConfigured = [] {
    const char* histories = std::getenv("PHYSICS_HISTORIES");
    const std::string settings = histories == nullptr ? "seed=20 max_success=2000 max_size=20"
                                                      : "max_size=100 max_success=" + std::string(histories);
    return setenv("RC_PARAMS", settings.c_str(), 0) == 0;
}();

RC_GTEST_PROP(History, agreesWithAPlainModelAfterEachStep, (const std::vector<Step>& steps))
{
    History history;
    for (const Step& step : steps)
        history.take(step);
}

} // namespace
