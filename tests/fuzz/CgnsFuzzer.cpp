// Any tree of nodes as a CGNS file: it is refused with a sentence, or a model comes of it, which is the same the
// second time. The bytes choose mostly what may stand at a place, and now and then anything.

#include "gtm/Face.h"
#include "importers/cgns/CgnsFile.h"
#include "importers/cgns/CgnsModel.h"
#include "importers/cgns/CgnsReader.h"
#include "tests/fuzz/Require.h"
#include "tests/importers/cgns/MemoryTree.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

using cgnstests::MemoryNode;
using cgnstests::MemoryTree;
using cgnstests::Numbers;
using cgnstests::Reals;

namespace {

/// What may stand below a node.
struct Growth {
    const char* parent; ///< label
    const char* name;   ///< null for one of `names`
    const char* label;
};

constexpr Growth growths[] = {
    {"", nullptr, "CGNSBase_t"},
    {"CGNSBase_t", nullptr, "Zone_t"},
    {"CGNSBase_t", nullptr, "Family_t"},
    {"CGNSBase_t", "Units", "DimensionalUnits_t"},
    {"Family_t", "FamilyBC", "FamilyBC_t"},
    {"Zone_t", "ZoneType", "ZoneType_t"},
    {"Zone_t", "GridCoordinates", "GridCoordinates_t"},
    {"Zone_t", "FamilyName", "FamilyName_t"},
    {"Zone_t", "Ordinal", "Ordinal_t"},
    {"Zone_t", nullptr, "Elements_t"},
    {"Zone_t", "ZoneBC", "ZoneBC_t"},
    {"Zone_t", "ZoneGridConnectivity", "ZoneGridConnectivity_t"},
    {"GridCoordinates_t", "CoordinateX", "DataArray_t"},
    {"Elements_t", "ElementRange", "IndexRange_t"},
    {"Elements_t", "ElementConnectivity", "DataArray_t"},
    {"Elements_t", "ElementStartOffset", "DataArray_t"},
    {"Elements_t", "ParentElements", "DataArray_t"},
    {"ZoneBC_t", nullptr, "BC_t"},
    {"BC_t", "PointRange", "IndexRange_t"},
    {"BC_t", "PointList", "IndexArray_t"},
    {"BC_t", "ElementRange", "IndexRange_t"},
    {"BC_t", "ElementList", "IndexArray_t"},
    {"BC_t", "GridLocation", "GridLocation_t"},
    {"BC_t", "FamilyName", "FamilyName_t"},
    {"BC_t", "Ordinal", "Ordinal_t"},
    {"ZoneGridConnectivity_t", nullptr, "GridConnectivity1to1_t"},
    {"ZoneGridConnectivity_t", nullptr, "GridConnectivity_t"},
    {"GridConnectivity1to1_t", "PointRange", "IndexRange_t"},
    {"GridConnectivity1to1_t", "PointRangeDonor", "IndexRange_t"},
    {"GridConnectivity1to1_t", "Property", "GridConnectivityProperty_t"},
    {"GridConnectivity1to1_t", "Ordinal", "Ordinal_t"},
    {"GridConnectivity_t", "PointList", "IndexArray_t"},
    {"GridConnectivity_t", "PointListDonor", "IndexArray_t"},
    {"GridConnectivity_t", "GridConnectivityType", "GridConnectivityType_t"},
    {"GridConnectivity_t", "GridLocation", "GridLocation_t"},
    {"GridConnectivity_t", "Property", "GridConnectivityProperty_t"},
    {"GridConnectivityProperty_t", "Periodic", "Periodic_t"},
    {"Periodic_t", "RotationCenter", "DataArray_t"},
    {"Periodic_t", "RotationAngle", "DataArray_t"},
    {"Periodic_t", "Translation", "DataArray_t"},
    {"Periodic_t", "Units", "DimensionalUnits_t"},
};

constexpr std::array<const char*, 8> names = {"a", "b", "c", "NONE", " ", "a,b", "\x1b", "uncovered"};

constexpr std::array<const char*, 20> texts = {
    "Structured", "Unstructured", "a",           "b",          "Base/b",     "FamilySpecified", "BCWall",
    "Vertex",     "FaceCenter",   "IFaceCenter", "CellCenter", "EdgeCenter", "Abutting1to1",    "Abutting",
    "Overset",    "UserDefined",  "Null",        "",           "fluid",      "Degree"};

/// Grows a tree from bytes, until they end.
class Gardener {
public:
    explicit Gardener(FuzzedDataProvider& bytes) : m_bytes(bytes) {}

    MemoryTree grow(const std::string& name, const std::string& label, std::size_t depth)
    {
        MemoryTree tree{name, label, {}, {}};
        addData(tree);
        while (depth < 7 && m_bytes.remaining_bytes() > 0 && m_bytes.ConsumeIntegralInRange(0, 7) != 0) {
            const Growth& growth = choose(label);
            const std::string child = growth.name ? growth.name : m_bytes.PickValueInArray(names);
            tree.children.push_back(grow(child, growth.label, depth + 1));
        }
        return tree;
    }

private:
    const Growth& choose(const std::string& label)
    {
        std::vector<const Growth*> fitting;
        for (const Growth& growth : growths) {
            if (growth.parent == label) {
                fitting.push_back(&growth);
            }
        }
        const bool anything = fitting.empty() || m_bytes.ConsumeIntegralInRange(0, 31) == 0;
        return anything ? growths[m_bytes.ConsumeIntegralInRange<std::size_t>(0, std::size(growths) - 1)]
                        : *fitting[m_bytes.ConsumeIntegralInRange<std::size_t>(0, fitting.size() - 1)];
    }

    /// Of the kind that mostly stands at such a node.
    void addData(MemoryTree& tree)
    {
        static const std::vector<std::string> numbered = {"CGNSBase_t", "Zone_t",       "Ordinal_t",
                                                          "Elements_t", "IndexRange_t", "IndexArray_t"};
        if (m_bytes.ConsumeIntegralInRange(0, 31) == 0) {
            tree.data = m_bytes.ConsumeRandomLengthString(40);
        } else if (tree.label == "CGNSBase_t") {
            tree.data = Numbers{3, 3};
        } else if (tree.name == "CoordinateX") {
            tree.data = Reals(m_bytes.ConsumeIntegralInRange<std::size_t>(0, 200));
        } else if (tree.name.find("Rotation") == 0 || tree.name == "Translation") {
            tree.data =
                Reals(m_bytes.ConsumeIntegralInRange<std::size_t>(2, 4), m_bytes.ConsumeFloatingPoint<double>());
        } else if (tree.label == "DimensionalUnits_t") {
            tree.data = std::string(128, ' ') + m_bytes.PickValueInArray(texts);
        } else if (tree.label == "DataArray_t" || std::count(numbered.begin(), numbered.end(), tree.label) != 0) {
            tree.data = numbers();
        } else {
            tree.data = std::string(m_bytes.PickValueInArray(texts));
        }
    }

    /// Mostly small, as indices are.
    Numbers numbers()
    {
        Numbers values(m_bytes.ConsumeIntegralInRange<std::size_t>(0, 40));
        for (std::int64_t& value : values) {
            value = m_bytes.ConsumeIntegralInRange<int>(-2, 30);
            if (value == 30) {
                value = m_bytes.ConsumeIntegral<std::int64_t>();
            }
        }
        return values;
    }

    FuzzedDataProvider& m_bytes;
};

/// Nothing when the tree is refused.
std::optional<std::vector<std::string>> readTwiceTheSame(const MemoryTree& tree, bool bodiesAreFamilies)
{
    const auto read = [&]() -> std::optional<std::vector<std::string>> {
        try {
            const auto result = gtm::bundled::buildModel(gtm::bundled::describe(MemoryNode(tree)), {bodiesAreFamilies});
            std::vector<std::string> lines = result.notes;
            for (const gtm::Face* face : result.model->faces()) {
                lines.push_back(face->id());
            }
            return lines;
        } catch (const gtm::bundled::CgnsError&) {
            return std::nullopt;
        }
    };
    const std::optional<std::vector<std::string>> once = read();
    require(once == read(), "a second reading gives the same");
    return once;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider bytes(data, size);
    const MemoryTree root = Gardener(bytes).grow("root", "", 0);
    const bool isRead = readTwiceTheSame(root, false).has_value();
    require(isRead == readTwiceTheSame(root, true).has_value(), "families refuse nothing that zones do not");
    return 0;
}
