#include "importers/cgns/SelectionReader.h"

#include "importers/cgns/CgnsReader.h"
#include "support/InQuotes.h"

#include <map>

namespace gtm::bundled {

namespace {

using Selection = CgnsDescription::Selection;

Selection::Location locationOf(const CgnsNodes& patch)
{
    using Location = Selection::Location;
    static const std::map<std::string, Location> locations = {
        {"Vertex", Location::Vertex},     {"FaceCenter", Location::Face},   {"IFaceCenter", Location::IFace},
        {"JFaceCenter", Location::JFace}, {"KFaceCenter", Location::KFace}, {"CellCenter", Location::Cell}};
    const CgnsNode* node = findLabel(patch, "GridLocation_t");
    if (!node) {
        return Location::Vertex;
    }
    const auto found = locations.find(node->text());
    return found == locations.end() ? Location::Other : found->second;
}

/// Reads the first of the nodes of these names that there is, and returns it; null when there is none.
const CgnsNode* readFirst(const CgnsNodes& patch, std::initializer_list<const char*> names, Selection& selection)
{
    for (const std::string name : names) {
        if (const CgnsNode* node = findName(patch, name)) {
            selection.values = node->integers();
            selection.isRange = name.find("Range") != std::string::npos;
            return node;
        }
    }
    return nullptr;
}

} // namespace

Selection readSelection(const CgnsNodes& patch, std::size_t axes, const std::string& place)
{
    Selection selection{locationOf(patch), false, {}};
    const CgnsNode* node = readFirst(patch, {"PointRange", "PointList", "ElementRange", "ElementList"}, selection);
    if (!node) {
        return selection;
    }
    // Elements are named by their numbers, whatever is said about the location.
    if (node->name().rfind("Element", 0) == 0) {
        selection.location = Selection::Location::Face;
    }
    const std::size_t size = selection.values.size();
    if (selection.isRange ? size != 2 * axes : size % axes != 0) {
        throw CgnsError(place + ": " + support::inQuotes(node->name()) + " has " + std::to_string(size) +
                        " numbers, which does not fit the zone; export the file again.");
    }
    return selection;
}

Selection readDonorSelection(const CgnsNodes& connectivity)
{
    Selection selection{locationOf(connectivity), false, {}};
    const CgnsNode* node = readFirst(connectivity, {"PointRangeDonor", "PointListDonor", "CellListDonor"}, selection);
    if (node && node->name() == "CellListDonor") {
        selection.location = Selection::Location::Cell;
    }
    return selection;
}

} // namespace gtm::bundled
