#include "importers/cgns/CgnsFile.h"

#include "importers/cgns/CgnsReader.h"

#include <algorithm>
#include <limits>
#include <map>
#include <set>

namespace gtm::bundled {

namespace {

using Patch = CgnsDescription::Patch;
using Section = CgnsDescription::Section;
using Selection = CgnsDescription::Selection;
using Zone = CgnsDescription::Zone;
using Nodes = std::vector<CgnsNode>;

constexpr double radiansPerDegree = 3.14159265358979323846 / 180;

/// The text of the first child with a label; empty without one.
std::string textOf(const Nodes& nodes, const std::string& label)
{
    const CgnsNode* node = findLabel(nodes, label);
    return node ? node->text() : std::string();
}

class FileReader {
public:
    CgnsDescription read(const CgnsNode& base);

private:
    void readFamily(const CgnsNode& node);
    void readZone(const CgnsNode& node);
    void readZoneSize(const CgnsNode& node, const Nodes& children, Zone& zone);
    void readSection(const CgnsNode& node, Zone& zone);
    void readConditions(const CgnsNode& node, Zone& zone);
    void readConnectivities(const CgnsNode& node, const std::string& angleUnit, Zone& zone);
    void readConnectivity(const CgnsNode& node, const std::string& angleUnit, Zone& zone);
    std::optional<CgnsDescription::Periodicity> readPeriodicity(const Nodes& connectivity, std::string angleUnit,
                                                                const std::string& place);
    double radiansPer(const std::string& unit, const std::string& place);
    Selection readSelection(const Nodes& children, const std::vector<std::string>& names, const std::string& place,
                            const Zone& zone);
    std::optional<std::int32_t> readOrdinal(const Nodes& children, const std::string& place);
    std::string familySays(const std::string& type, const std::string& family, const std::string& place);
    void leaveOut(const CgnsNode& node);
    void note(std::string sentence) { m_result.notes.push_back(std::move(sentence)); }

    CgnsDescription m_result;
    std::map<std::string, std::string> m_familyTypes;

    /// Types of nodes that are not for us, with their number.
    std::map<std::string, std::size_t> m_leftOut;
};

/// What is said about angles at one level of the tree; what was said above holds where nothing is.
std::string angleUnitOf(const Nodes& nodes, const std::string& above)
{
    constexpr std::size_t width = 32;
    constexpr std::size_t place = 4;
    const std::string units = textOf(nodes, "DimensionalUnits_t");
    if (units.size() <= place * width) {
        return above;
    }
    const std::string unit = units.substr(place * width, width);
    const std::string trimmed = unit.substr(0, unit.find_last_not_of(' ') + 1);
    return trimmed == "Null" || trimmed == "UserDefined" ? above : trimmed;
}

CgnsDescription FileReader::read(const CgnsNode& base)
{
    const std::vector<std::int64_t> dimensions = base.integers();
    if (dimensions.size() != 2 || dimensions[0] != 3 || dimensions[1] != 3) {
        throw CgnsError("the base \"" + base.name() +
                        "\" does not hold three-dimensional cells in three-dimensional space; export a volume mesh.");
    }
    const Nodes children = base.children();
    for (const CgnsNode& child : children) {
        if (child.label() == "Family_t") {
            readFamily(child);
        }
    }
    const std::string angleUnit = angleUnitOf(children, {});
    for (const CgnsNode& child : children) {
        if (child.label() == "Zone_t") {
            readZone(child);
            const Nodes parts = child.children();
            for (const CgnsNode& part : parts) {
                if (part.label() == "ZoneGridConnectivity_t") {
                    readConnectivities(part, angleUnitOf(parts, angleUnit), m_result.zones.back());
                }
            }
        } else if (child.label() != "Family_t" && child.label() != "DimensionalUnits_t") {
            leaveOut(child);
        }
    }
    if (m_result.zones.empty()) {
        throw CgnsError("the base \"" + base.name() + "\" has no zone; export the mesh too.");
    }
    std::string counts;
    for (const auto& [label, count] : m_leftOut) {
        counts += (counts.empty() ? "" : ", ") + std::to_string(count) + " " + label;
    }
    if (!counts.empty()) {
        note("Nodes that say nothing about bodies and faces are left out: " + counts + ".");
    }
    return std::move(m_result);
}

void FileReader::readFamily(const CgnsNode& node)
{
    const Nodes children = node.children();
    m_familyTypes[node.name()] = textOf(children, "FamilyBC_t");
    for (const CgnsNode& child : children) {
        if (child.label() != "FamilyBC_t") {
            leaveOut(child);
        }
    }
}

void FileReader::readZone(const CgnsNode& node)
{
    const Nodes children = node.children();
    Zone zone;
    zone.name = node.name();
    readZoneSize(node, children, zone);
    zone.family = textOf(children, "FamilyName_t");
    zone.ordinal = readOrdinal(children, "Zone \"" + zone.name + "\"");
    static const std::set<std::string> ours = {"ZoneType_t", "GridCoordinates_t",      "FamilyName_t",
                                               "Ordinal_t",  "ZoneGridConnectivity_t", "DimensionalUnits_t"};
    for (const CgnsNode& child : children) {
        if (child.label() == "ZoneBC_t") {
            readConditions(child, zone);
        } else if (child.label() == "Elements_t") {
            readSection(child, zone);
        } else if (ours.count(child.label()) == 0) {
            leaveOut(child);
        }
    }
    m_result.zones.push_back(std::move(zone));
}

void FileReader::readZoneSize(const CgnsNode& node, const Nodes& children, Zone& zone)
{
    const auto refuse = [&](const std::string& what) { throw CgnsError("the zone \"" + node.name() + "\" " + what); };
    const std::string type = textOf(children, "ZoneType_t");
    if (type != "Structured" && type != "Unstructured") {
        refuse(type.empty()
                   ? "does not say whether it is structured; export the file again."
                   : "is neither structured nor unstructured but \"" + type + "\"; export it as one of these.");
    }
    zone.isStructured = type == "Structured";
    const std::vector<std::int64_t> sizes = node.integers();
    const std::size_t axes = zone.isStructured ? 3 : 1;
    std::size_t noOfCoordinates = 0;
    if (const CgnsNode* coordinates = findLabel(children, "GridCoordinates_t")) {
        const Nodes arrays = coordinates->children();
        const CgnsNode* array = findLabel(arrays, "DataArray_t");
        noOfCoordinates = array ? array->noOfValues() : 0;
    }
    if (noOfCoordinates == 0) {
        refuse("has no coordinates; export the mesh too.");
    }
    if (sizes.size() != 3 * axes) {
        refuse("has a size of " + std::to_string(sizes.size()) + " numbers instead of " + std::to_string(3 * axes) +
               "; export the file again.");
    }
    zone.vertices.assign(sizes.begin(), sizes.begin() + static_cast<std::ptrdiff_t>(axes));
    std::size_t most = noOfCoordinates;
    for (const std::int64_t count : zone.vertices) {
        if (count < 2 || static_cast<std::size_t>(count) > most) {
            refuse("has " + std::to_string(count) + " vertices along an axis, which does not fit its " +
                   std::to_string(noOfCoordinates) + " coordinates; export the file again.");
        }
        most /= static_cast<std::size_t>(count);
    }
}

void FileReader::readSection(const CgnsNode& node, Zone& zone)
{
    const Nodes children = node.children();
    const std::string place = "the elements \"" + node.name() + "\" of the zone \"" + zone.name + "\"";
    const std::vector<std::int64_t> type = node.integers();
    const CgnsNode* range = findName(children, "ElementRange");
    const CgnsNode* connectivity = findName(children, "ElementConnectivity");
    if (type.empty() || !range || !connectivity) {
        throw CgnsError(place + " have no type, no range or no connectivity; export the file again.");
    }
    const std::vector<std::int64_t> ends = range->integers();
    if (ends.size() != 2 || ends[0] < 1 || ends[1] < ends[0]) {
        throw CgnsError(place + " have a range that is not two numbers in order; export the file again.");
    }
    zone.sections.push_back({node.name(), type[0], ends[0], ends[1], connectivity->integers()});
}

void FileReader::readConditions(const CgnsNode& node, Zone& zone)
{
    for (const CgnsNode& condition : node.children()) {
        if (condition.label() != "BC_t") {
            leaveOut(condition);
            continue;
        }
        const Nodes children = condition.children();
        const std::string place = "Condition \"" + condition.name() + "\" of zone \"" + zone.name + "\"";
        Patch patch;
        patch.name = condition.name();
        patch.family = textOf(children, "FamilyName_t");
        patch.type = familySays(condition.text(), patch.family, place);
        patch.ordinal = readOrdinal(children, place);
        patch.selection =
            readSelection(children, {"PointRange", "PointList", "ElementRange", "ElementList"}, place, zone);
        static const std::set<std::string> ours = {"IndexRange_t", "IndexArray_t", "FamilyName_t", "Ordinal_t",
                                                   "GridLocation_t"};
        for (const CgnsNode& child : children) {
            if (ours.count(child.label()) == 0) {
                leaveOut(child);
            }
        }
        zone.patches.push_back(std::move(patch));
    }
}

void FileReader::readConnectivities(const CgnsNode& node, const std::string& angleUnit, Zone& zone)
{
    for (const CgnsNode& connectivity : node.children()) {
        const std::string& label = connectivity.label();
        if (label == "GridConnectivity1to1_t" || label == "GridConnectivity_t") {
            readConnectivity(connectivity, angleUnit, zone);
        } else {
            leaveOut(connectivity);
        }
    }
}

void FileReader::readConnectivity(const CgnsNode& node, const std::string& angleUnit, Zone& zone)
{
    const Nodes children = node.children();
    const std::string place = "Connectivity \"" + node.name() + "\" of zone \"" + zone.name + "\"";
    const bool oneToOne = node.label() == "GridConnectivity1to1_t";
    const std::string type = oneToOne ? "Abutting1to1" : textOf(children, "GridConnectivityType_t");
    if (type == "Overset") {
        note(place + " is of the kind overset, in which zones overlap; it is left out.");
        return;
    }
    Patch patch;
    patch.name = node.name();
    patch.kind = type == "Abutting1to1" ? Patch::Kind::OneToOne : Patch::Kind::General;
    patch.ordinal = readOrdinal(children, place);
    // A donor may be given as "Base/Zone".
    patch.donorZone = node.text();
    patch.donorZone.erase(0, patch.donorZone.find_last_of('/') + 1);
    patch.selection = readSelection(children, {"PointRange", "PointList"}, place, zone);
    patch.donor = readSelection(children, {"PointRangeDonor", "PointListDonor"}, place, zone);
    patch.periodicity = readPeriodicity(children, angleUnitOf(children, angleUnit), place);
    zone.patches.push_back(std::move(patch));
}

std::optional<CgnsDescription::Periodicity> FileReader::readPeriodicity(const Nodes& connectivity,
                                                                        std::string angleUnit, const std::string& place)
{
    const CgnsNode* property = findLabel(connectivity, "GridConnectivityProperty_t");
    if (!property) {
        return std::nullopt;
    }
    const Nodes properties = property->children();
    const CgnsNode* periodic = findLabel(properties, "Periodic_t");
    if (!periodic) {
        return std::nullopt;
    }
    const Nodes children = periodic->children();
    const auto three = [&](const std::string& name) {
        std::array<double, 3> values = {};
        if (const CgnsNode* node = findName(children, name)) {
            const std::vector<double> stored = node->reals();
            if (stored.size() != values.size()) {
                throw CgnsError(place + ": \"" + name + "\" is not three numbers; export the file again.");
            }
            std::copy(stored.begin(), stored.end(), values.begin());
        }
        return values;
    };
    CgnsDescription::Periodicity result{three("RotationCenter"), three("RotationAngle"), three("Translation")};
    if (result.angle == std::array<double, 3>{}) {
        return result;
    }
    angleUnit = angleUnitOf(children, angleUnit);
    const double factor = radiansPer(angleUnitOf(findName(children, "RotationAngle")->children(), angleUnit), place);
    for (double& angle : result.angle) {
        angle *= factor;
    }
    return result;
}

double FileReader::radiansPer(const std::string& unit, const std::string& place)
{
    if (unit == "Degree") {
        return radiansPerDegree;
    }
    if (unit != "Radian") {
        note(place + " has an angle " + (unit.empty() ? "without a unit" : "in the unknown unit \"" + unit + "\"") +
             "; it is taken to be in radians.");
    }
    return 1;
}

Selection FileReader::readSelection(const Nodes& children, const std::vector<std::string>& names,
                                    const std::string& place, const Zone& zone)
{
    static const std::map<std::string, Selection::Location> locations = {
        {"", Selection::Location::Vertex},           {"Vertex", Selection::Location::Vertex},
        {"FaceCenter", Selection::Location::Face},   {"IFaceCenter", Selection::Location::IFace},
        {"JFaceCenter", Selection::Location::JFace}, {"KFaceCenter", Selection::Location::KFace}};
    Selection selection;
    const auto location = locations.find(textOf(children, "GridLocation_t"));
    selection.location = location == locations.end() ? Selection::Location::Other : location->second;
    const auto named = std::find_if(names.begin(), names.end(),
                                    [&](const std::string& name) { return findName(children, name) != nullptr; });
    if (named == names.end()) {
        return selection;
    }
    selection.values = findName(children, *named)->integers();
    selection.isRange = named->find("Range") != std::string::npos;
    if (named->rfind("Element", 0) == 0) {
        selection.location = Selection::Location::Face;
    }
    const std::size_t axes = zone.vertices.size();
    const std::size_t size = selection.values.size();
    // The donor of a connectivity may be of the other kind of zone than its owner; it is checked where it is used.
    const bool isDonor = named->find("Donor") != std::string::npos;
    if (!isDonor && (selection.isRange ? size != 2 * axes : size % axes != 0)) {
        throw CgnsError(place + ": \"" + *named + "\" has " + std::to_string(size) +
                        " numbers, which does not fit the zone; export the file again.");
    }
    return selection;
}

std::optional<std::int32_t> FileReader::readOrdinal(const Nodes& children, const std::string& place)
{
    const CgnsNode* node = findLabel(children, "Ordinal_t");
    const std::vector<std::int64_t> values = node ? node->integers() : std::vector<std::int64_t>();
    if (values.empty()) {
        return std::nullopt;
    }
    if (values[0] < 1 || values[0] > std::numeric_limits<std::int32_t>::max()) {
        note(place + " has the ordinal " + std::to_string(values[0]) +
             ", which cannot be the number of a solver zone; it gets another number.");
        return std::nullopt;
    }
    return static_cast<std::int32_t>(values[0]);
}

std::string FileReader::familySays(const std::string& type, const std::string& family, const std::string& place)
{
    if (type != "FamilySpecified") {
        return type;
    }
    const auto found = m_familyTypes.find(family);
    if (found != m_familyTypes.end() && !found->second.empty()) {
        return found->second;
    }
    note(place + " leaves its type to " +
         (family.empty() ? "a family without naming one" : "the family \"" + family + "\", which has none") +
         "; the type is not known.");
    return type;
}

void FileReader::leaveOut(const CgnsNode& node) { ++m_leftOut[node.label().empty() ? "unnamed" : node.label()]; }

} // namespace

CgnsDescription describe(const CgnsTree& tree)
{
    const Nodes nodes = tree.root().children();
    const CgnsNode* base = nullptr;
    for (const CgnsNode& node : nodes) {
        if (node.label() != "CGNSBase_t") {
            continue;
        }
        if (base) {
            throw CgnsError("the file has several bases, among them \"" + base->name() + "\" and \"" + node.name() +
                            "\"; write each into a file of its own.");
        }
        base = &node;
    }
    if (!base) {
        throw CgnsError("the file has no CGNS base; export it again as CGNS.");
    }
    return FileReader().read(*base);
}

} // namespace gtm::bundled
