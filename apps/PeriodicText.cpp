#include "apps/PeriodicText.h"

#include "physics/Interface.h"

#include <array>
#include <charconv>

namespace physics::apps {
namespace {

/// The shortest text that reads back as the same number.
std::string textOf(double number)
{
    std::array<char, 32> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), end};
}

std::string textOf(const std::array<double, 3>& vector)
{
    return "(" + textOf(vector[0]) + ", " + textOf(vector[1]) + ", " + textOf(vector[2]) + ")";
}

} // namespace

std::string periodicText(const Interface& interface)
{
    switch (interface.periodicity()) {
    case Periodicity::TranslationallyPeriodic:
        return "translation by " + textOf(interface.getPeriodicOffset());
    case Periodicity::RotationallyPeriodic:
        return "rotation by " + textOf(interface.getPeriodicAngle()) + " about " +
               textOf(interface.getPeriodicDirection()) + " through " + textOf(interface.getPeriodicOrigin());
    case Periodicity::NonPeriodic:
        break;
    }
    return "-";
}

} // namespace physics::apps
