#include "importers/cad/BrepFile.h"

#include "importers/cad/CadDescription.h"
#include "tests/importers/cad/Listing.h"
#include "tests/importers/cad/Shapes.h"

#include <BRepBuilderAPI_MakeSolid.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Shell.hxx>
#include <gtest/gtest.h>

namespace {

using cadtests::box;
using cadtests::brepOf;
using cadtests::compound;
using cadtests::first;
using gtm::bundled::buildModel;
using gtm::bundled::CadResult;
using gtm::bundled::readBrep;
using Strings = std::vector<std::string>;

CadResult read(const TopoDS_Shape& shape) { return buildModel(describe(readBrep(brepOf(shape)))); }

TEST(BrepFile, solidsAreBodiesWithoutParts)
{
    const CadResult result = read(compound({box({0, 0, 0}, {1, 1, 1}), box({5, 0, 0}, {6, 1, 1})}));

    EXPECT_TRUE(
        cadtests::listingOf(*result.model).starts_with("body body-1\nbody body-2\nface body-1/face-1: body-1\n"));
    EXPECT_EQ(result.model->faces().size(), 12U);
    EXPECT_TRUE(result.model->parts().empty());
    EXPECT_TRUE(result.notes.empty());
}

TEST(BrepFile, aSolidInSeveralPlacesIsSeveralBodies)
{
    const TopoDS_Shape solid = box({0, 0, 0}, {1, 1, 1});

    const CadResult result = read(compound({solid, cadtests::shifted(solid, 3), compound({solid})}));

    EXPECT_EQ(result.model->bodies().size(), 2U);
    EXPECT_EQ(result.model->faces().size(), 12U);
}

TEST(BrepFile, looseGeometryIsTold)
{
    const TopoDS_Shape spare = box({5, 0, 0}, {6, 1, 1});

    const CadResult result =
        read(compound({box({0, 0, 0}, {1, 1, 1}), first(spare, TopAbs_FACE), first(spare, TopAbs_EDGE)}));

    EXPECT_EQ(result.notes, (Strings{"Left out, because they bound no solid: 1 face and 1 edge."}));
}

TEST(BrepFile, twoSolidsInTheSameShellOverlap)
{
    const TopoDS_Shape solid = box({0, 0, 0}, {1, 1, 1});
    const TopoDS_Shape again = BRepBuilderAPI_MakeSolid(TopoDS::Shell(first(solid, TopAbs_SHELL))).Shape();

    EXPECT_EQ(cadtests::messageOf([&] {
                  read(compound({solid, again}));
              }),
              "of the bodies \"body-1\" and \"body-2\" at face \"body-1/face-1\", two are on the same side, so they "
              "overlap; make them disjoint, or read the file with imprinting.");
}

} // namespace
