#include "importers/cgns/PeriodicityReader.h"

#include "importers/cgns/CgnsReader.h"
#include "support/InQuotes.h"

#include <algorithm>
#include <array>

namespace gtm::bundled {

namespace {

using support::inQuotes;
using Vector = std::array<double, 3>;

constexpr double radiansPerDegree = 3.14159265358979323846 / 180;

/// Zeros where there is no node of that name.
Vector readVector(const CgnsNodes& nodes, const std::string& name, const std::string& place)
{
    const CgnsNode* node = findName(nodes, name);
    Vector vector = {};
    if (!node) {
        return vector;
    }
    const std::vector<double> stored = node->reals();
    if (stored.size() != vector.size()) {
        throw CgnsError(place + ": " + inQuotes(name) + " is not three numbers; export the file again.");
    }
    std::copy(stored.begin(), stored.end(), vector.begin());
    return vector;
}

double radiansPer(const std::string& unit, const std::string& place, std::vector<std::string>& notes)
{
    if (unit == "Degree") {
        return radiansPerDegree;
    }
    if (unit != "Radian") {
        notes.push_back(place + " has an angle " +
                        (unit.empty() ? "without a unit" : "in the unknown unit " + inQuotes(unit)) +
                        "; it is taken to be in radians.");
    }
    return 1;
}

} // namespace

std::string angleUnitOf(const CgnsNodes& nodes, const std::string& above)
{
    // Mass, length, time, temperature and angle, each in a field of its own.
    constexpr std::size_t width = 32;
    constexpr std::size_t place = 4;
    const CgnsNode* node = findLabel(nodes, "DimensionalUnits_t");
    const std::string units = node ? node->text() : std::string();
    if (units.size() <= place * width) {
        return above;
    }
    const std::string unit = units.substr(place * width, width);
    const std::string trimmed = unit.substr(0, unit.find_last_not_of(' ') + 1);
    return trimmed == "Null" || trimmed == "UserDefined" ? above : trimmed;
}

std::optional<CgnsDescription::Periodicity> readPeriodicity(const CgnsNodes& connectivity, const std::string& angleUnit,
                                                            const std::string& place, std::vector<std::string>& notes)
{
    const CgnsNode* property = findLabel(connectivity, "GridConnectivityProperty_t");
    const CgnsNodes properties = property ? property->children() : CgnsNodes();
    const CgnsNode* periodic = findLabel(properties, "Periodic_t");
    if (!periodic) {
        return std::nullopt;
    }
    const CgnsNodes children = periodic->children();
    CgnsDescription::Periodicity result{readVector(children, "RotationCenter", place),
                                        readVector(children, "RotationAngle", place),
                                        readVector(children, "Translation", place)};
    if (result.angle == Vector{}) {
        return result;
    }
    const CgnsNodes ofAngle = findName(children, "RotationAngle")->children();
    const double factor = radiansPer(angleUnitOf(ofAngle, angleUnitOf(children, angleUnit)), place, notes);
    for (double& angle : result.angle) {
        angle *= factor;
    }
    return result;
}

} // namespace gtm::bundled
