#include "importers/cgns/CgnsFile.h"

#include "importers/cgns/CgnsReader.h"
#include "importers/cgns/PeriodicityReader.h"
#include "importers/cgns/SelectionReader.h"
#include "support/InQuotes.h"

#include <limits>
#include <map>
#include <set>

namespace gtm::bundled {

namespace {

using support::inQuotes;
using Patch = CgnsDescription::Patch;
using Section = CgnsDescription::Section;
using Selection = CgnsDescription::Selection;
using Zone = CgnsDescription::Zone;
using Nodes = CgnsNodes;

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
    void readCondition(const CgnsNode& node, Zone& zone);
    void readConnectivities(const CgnsNode& node, const std::string& angleUnit, Zone& zone);
    void readConnectivity(const CgnsNode& node, const std::string& angleUnit, Zone& zone);
    std::optional<std::int32_t> readOrdinal(const Nodes& children, const std::string& place);
    std::string familySays(const std::string& type, const std::string& family, const std::string& place);
    void leaveOut(const CgnsNode& node);
    void note(std::string sentence) { m_result.notes.push_back(std::move(sentence)); }

    CgnsDescription m_result;
    std::map<std::string, std::string> m_familyTypes;

    /// Types of nodes that are not for us, with their number.
    std::map<std::string, std::size_t> m_leftOut;
};

CgnsDescription FileReader::read(const CgnsNode& base)
{
    const std::vector<std::int64_t> dimensions = base.integers();
    if (dimensions.size() != 2 || dimensions[0] != 3 || dimensions[1] != 3) {
        throw CgnsError("the base " + inQuotes(base.name()) +
                        " does not hold three-dimensional cells in three-dimensional space; export a volume mesh.");
    }
    const Nodes children = base.children();
    for (const auto& child : children) {
        if (child->label() == "Family_t") {
            readFamily(*child);
        }
    }
    const std::string angleUnit = angleUnitOf(children, {});
    for (const auto& child : children) {
        if (child->label() == "Zone_t") {
            readZone(*child);
            const Nodes parts = child->children();
            for (const auto& part : parts) {
                if (part->label() == "ZoneGridConnectivity_t") {
                    readConnectivities(*part, angleUnitOf(parts, angleUnit), m_result.zones.back());
                }
            }
        } else if (child->label() != "Family_t" && child->label() != "DimensionalUnits_t") {
            leaveOut(*child);
        }
    }
    if (m_result.zones.empty()) {
        throw CgnsError("the base " + inQuotes(base.name()) + " has no zone; export the mesh too.");
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
    for (const auto& child : children) {
        if (child->label() != "FamilyBC_t") {
            leaveOut(*child);
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
    zone.ordinal = readOrdinal(children, "Zone " + inQuotes(zone.name));
    static const std::set<std::string> ours = {"ZoneType_t", "GridCoordinates_t",      "FamilyName_t",
                                               "Ordinal_t",  "ZoneGridConnectivity_t", "DimensionalUnits_t"};
    for (const auto& child : children) {
        if (child->label() == "ZoneBC_t") {
            readConditions(*child, zone);
        } else if (child->label() == "Elements_t") {
            readSection(*child, zone);
        } else if (ours.count(child->label()) == 0) {
            leaveOut(*child);
        }
    }
    m_result.zones.push_back(std::move(zone));
}

void FileReader::readZoneSize(const CgnsNode& node, const Nodes& children, Zone& zone)
{
    const auto refuse = [&](const std::string& what) {
        throw CgnsError("the zone " + inQuotes(node.name()) + " " + what);
    };
    const std::string type = textOf(children, "ZoneType_t");
    if (type != "Structured" && type != "Unstructured") {
        refuse(type.empty()
                   ? "does not say whether it is structured; export the file again."
                   : "is neither structured nor unstructured but " + inQuotes(type) + "; export it as one of these.");
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
    const std::string place = "the elements " + inQuotes(node.name()) + " of the zone " + inQuotes(zone.name);
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
    const auto integersOf = [&](const std::string& name) {
        const CgnsNode* array = findName(children, name);
        return array ? array->integers() : std::vector<std::int64_t>();
    };
    zone.sections.push_back({node.name(), type[0], ends[0], ends[1], connectivity->integers(),
                             integersOf("ElementStartOffset"), integersOf("ParentElements")});
}

void FileReader::readConditions(const CgnsNode& node, Zone& zone)
{
    for (const auto& condition : node.children()) {
        if (condition->label() == "BC_t") {
            readCondition(*condition, zone);
        } else {
            leaveOut(*condition);
        }
    }
}

void FileReader::readCondition(const CgnsNode& node, Zone& zone)
{
    const Nodes children = node.children();
    const std::string place = "Condition " + inQuotes(node.name()) + " of zone " + inQuotes(zone.name);
    Patch patch;
    patch.name = node.name();
    patch.family = textOf(children, "FamilyName_t");
    patch.type = familySays(node.text(), patch.family, place);
    patch.ordinal = readOrdinal(children, place);
    patch.selection = readSelection(children, zone.vertices.size(), place);
    static const std::set<std::string> ours = {"IndexRange_t", "IndexArray_t", "FamilyName_t", "Ordinal_t",
                                               "GridLocation_t"};
    for (const auto& child : children) {
        if (ours.count(child->label()) == 0) {
            leaveOut(*child);
        }
    }
    zone.patches.push_back(std::move(patch));
}

void FileReader::readConnectivities(const CgnsNode& node, const std::string& angleUnit, Zone& zone)
{
    for (const auto& connectivity : node.children()) {
        const std::string& label = connectivity->label();
        if (label == "GridConnectivity1to1_t" || label == "GridConnectivity_t") {
            readConnectivity(*connectivity, angleUnit, zone);
        } else {
            leaveOut(*connectivity);
        }
    }
}

void FileReader::readConnectivity(const CgnsNode& node, const std::string& angleUnit, Zone& zone)
{
    const Nodes children = node.children();
    const std::string place = "Connectivity " + inQuotes(node.name()) + " of zone " + inQuotes(zone.name);
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
    patch.selection = readSelection(children, zone.vertices.size(), place);
    patch.donor = readDonorSelection(children);
    patch.periodicity = readPeriodicity(children, angleUnitOf(children, angleUnit), place, m_result.notes);
    zone.patches.push_back(std::move(patch));
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
         (family.empty() ? "a family without naming one" : "the family " + inQuotes(family) + ", which has none") +
         "; the type is not known.");
    return type;
}

void FileReader::leaveOut(const CgnsNode& node) { ++m_leftOut[node.label().empty() ? "unnamed" : node.label()]; }

} // namespace

CgnsDescription describe(const CgnsNode& root)
{
    const Nodes nodes = root.children();
    const CgnsNode* base = nullptr;
    for (const auto& node : nodes) {
        if (node->label() != "CGNSBase_t") {
            continue;
        }
        if (base) {
            throw CgnsError("the file has several bases, among them " + inQuotes(base->name()) + " and " +
                            inQuotes(node->name()) + "; write each into a file of its own.");
        }
        base = node.get();
    }
    if (!base) {
        throw CgnsError("the file has no CGNS base; export it again as CGNS.");
    }
    return FileReader().read(*base);
}

} // namespace gtm::bundled
