#include "importers/cgns/ElementKinds.h"

#include <cgnslib.h>

#include <map>

namespace gtm::bundled {

namespace {

using Faces = std::vector<std::vector<std::size_t>>;

std::map<std::int64_t, ElementKind> allKinds()
{
    const Faces none;
    const Faces triangle = {{0, 1, 2}};
    const Faces quadrilateral = {{0, 1, 2, 3}};
    const Faces tetrahedron = {{0, 2, 1}, {0, 1, 3}, {1, 2, 3}, {2, 0, 3}};
    const Faces pyramid = {{0, 3, 2, 1}, {0, 1, 4}, {1, 2, 4}, {2, 3, 4}, {3, 0, 4}};
    const Faces prism = {{0, 1, 4, 3}, {1, 2, 5, 4}, {2, 0, 3, 5}, {0, 2, 1}, {3, 4, 5}};
    const Faces hexahedron = {{0, 3, 2, 1}, {0, 1, 5, 4}, {1, 2, 6, 5}, {2, 3, 7, 6}, {0, 4, 7, 3}, {4, 5, 6, 7}};
    return {
        {CGNS_ENUMV(NODE), {1, none}},
        {CGNS_ENUMV(BAR_2), {2, none}},
        {CGNS_ENUMV(BAR_3), {3, none}},
        {CGNS_ENUMV(BAR_4), {4, none}},
        {CGNS_ENUMV(BAR_5), {5, none}},
        {CGNS_ENUMV(TRI_3), {3, triangle}},
        {CGNS_ENUMV(TRI_6), {6, triangle}},
        {CGNS_ENUMV(TRI_9), {9, triangle}},
        {CGNS_ENUMV(TRI_10), {10, triangle}},
        {CGNS_ENUMV(TRI_12), {12, triangle}},
        {CGNS_ENUMV(TRI_15), {15, triangle}},
        {CGNS_ENUMV(QUAD_4), {4, quadrilateral}},
        {CGNS_ENUMV(QUAD_8), {8, quadrilateral}},
        {CGNS_ENUMV(QUAD_9), {9, quadrilateral}},
        {CGNS_ENUMV(QUAD_12), {12, quadrilateral}},
        {CGNS_ENUMV(QUAD_16), {16, quadrilateral}},
        {CGNS_ENUMV(QUAD_P4_16), {16, quadrilateral}},
        {CGNS_ENUMV(QUAD_25), {25, quadrilateral}},
        {CGNS_ENUMV(TETRA_4), {4, tetrahedron, true}},
        {CGNS_ENUMV(TETRA_10), {10, tetrahedron, true}},
        {CGNS_ENUMV(TETRA_16), {16, tetrahedron, true}},
        {CGNS_ENUMV(TETRA_20), {20, tetrahedron, true}},
        {CGNS_ENUMV(TETRA_22), {22, tetrahedron, true}},
        {CGNS_ENUMV(TETRA_34), {34, tetrahedron, true}},
        {CGNS_ENUMV(TETRA_35), {35, tetrahedron, true}},
        {CGNS_ENUMV(PYRA_5), {5, pyramid, true}},
        {CGNS_ENUMV(PYRA_13), {13, pyramid, true}},
        {CGNS_ENUMV(PYRA_14), {14, pyramid, true}},
        {CGNS_ENUMV(PYRA_21), {21, pyramid, true}},
        {CGNS_ENUMV(PYRA_29), {29, pyramid, true}},
        {CGNS_ENUMV(PYRA_30), {30, pyramid, true}},
        {CGNS_ENUMV(PYRA_P4_29), {29, pyramid, true}},
        {CGNS_ENUMV(PYRA_50), {50, pyramid, true}},
        {CGNS_ENUMV(PYRA_55), {55, pyramid, true}},
        {CGNS_ENUMV(PENTA_6), {6, prism, true}},
        {CGNS_ENUMV(PENTA_15), {15, prism, true}},
        {CGNS_ENUMV(PENTA_18), {18, prism, true}},
        {CGNS_ENUMV(PENTA_24), {24, prism, true}},
        {CGNS_ENUMV(PENTA_38), {38, prism, true}},
        {CGNS_ENUMV(PENTA_40), {40, prism, true}},
        {CGNS_ENUMV(PENTA_33), {33, prism, true}},
        {CGNS_ENUMV(PENTA_66), {66, prism, true}},
        {CGNS_ENUMV(PENTA_75), {75, prism, true}},
        {CGNS_ENUMV(HEXA_8), {8, hexahedron, true}},
        {CGNS_ENUMV(HEXA_20), {20, hexahedron, true}},
        {CGNS_ENUMV(HEXA_27), {27, hexahedron, true}},
        {CGNS_ENUMV(HEXA_32), {32, hexahedron, true}},
        {CGNS_ENUMV(HEXA_56), {56, hexahedron, true}},
        {CGNS_ENUMV(HEXA_64), {64, hexahedron, true}},
        {CGNS_ENUMV(HEXA_44), {44, hexahedron, true}},
        {CGNS_ENUMV(HEXA_98), {98, hexahedron, true}},
        {CGNS_ENUMV(HEXA_125), {125, hexahedron, true}},
    };
}

} // namespace

const ElementKind* elementKind(std::int64_t type)
{
    static const std::map<std::int64_t, ElementKind> kinds = allKinds();
    const auto found = kinds.find(type);
    return found == kinds.end() ? nullptr : &found->second;
}

} // namespace gtm::bundled
