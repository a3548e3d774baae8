#pragma once

#include "physics/report/Words.h"

#include <string>
#include <string_view>

namespace physics {

/// The two answers to a question of validity: with warnings included, and with warnings ignored, which can
/// only be kinder.
struct Answers {
    bool included = false;
    bool ignored = false;

    Answers operator&&(const Answers& other) const { return {included && other.included, ignored && other.ignored}; }
};

/// What an object, or a whole set-up, answers to the questions of validity; each asked at most twice.
struct Validity {
    Answers topology;
    Answers physics;
    Answers all;

    template <class T>
    explicit Validity(const T& object) : Validity(object, object.isPhysicsValid(false))
    {}

    /// For a caller that knows already whether the rules speak against the object, warnings included.
    template <class T>
    Validity(const T& object, bool isPhysicsValid)
    {
        topology.included = object.isTopologyValid(false);
        topology.ignored = topology.included || object.isTopologyValid(true);
        physics.included = isPhysicsValid;
        physics.ignored = physics.included || object.isPhysicsValid(true);
        all = topology && physics;
    }
};

/// Both answers as the lines of a block show them.
inline std::string inWords(const Answers& answers)
{
    return rightAligned(inWords(answers.included), 5) + " (" + rightAligned(inWords(answers.ignored), 5) +
           " ignoring warnings)";
}

} // namespace physics
