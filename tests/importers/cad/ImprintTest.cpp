#include "importers/cad/Imprint.h"

#include "tests/importers/cad/Listing.h"
#include "tests/importers/cad/Shapes.h"

#include <gtest/gtest.h>

namespace {

using cadtests::box;
using cadtests::listingOf;
using gtm::bundled::addSolid;
using gtm::bundled::buildModel;
using gtm::bundled::CadResult;
using gtm::bundled::CadShapes;
using gtm::bundled::CadSolid;
using Strings = std::vector<std::string>;

/// Faces of a box in the order of the kernel: -x, +x, -y, +y, -z, +z.
void addBox(CadShapes& shapes, const std::string& name, const TopoDS_Shape& shape, const Strings& faceNames = {})
{
    CadSolid& solid = addSolid(shape, shapes);
    solid.name = name;
    for (std::size_t i = 0; i < faceNames.size(); ++i)
        solid.faces[i].name = faceNames[i];
}

CadResult imprinted(CadShapes shapes)
{
    imprint(shapes);
    return buildModel(describe(shapes));
}

TEST(Imprint, equalFacesBecomeOneSharedFace)
{
    CadShapes shapes;
    addBox(shapes, "left", box({0, 0, 0}, {1, 1, 1}), {"", "contact"});
    addBox(shapes, "right", box({1, 0, 0}, {2, 1, 1}));

    const CadResult result = imprinted(shapes);

    EXPECT_EQ(listingOf(*result.model), "body left\n"
                                        "body right\n"
                                        "face left/face-1: left\n"
                                        "face left/contact: left | right\n"
                                        "face left/face-3: left\n"
                                        "face left/face-4: left\n"
                                        "face left/face-5: left\n"
                                        "face left/face-6: left\n"
                                        "face right/face-2: right\n"
                                        "face right/face-3: right\n"
                                        "face right/face-4: right\n"
                                        "face right/face-5: right\n"
                                        "face right/face-6: right\n");
    EXPECT_TRUE(result.notes.empty());
}

TEST(Imprint, piecesOfADividedFaceKeepItsNameInTheOrderOfTheirCentres)
{
    CadShapes shapes;
    addBox(shapes, "wide", box({0, 0, 0}, {1, 3, 1}), {"", "front"});
    addBox(shapes, "narrow", box({1, 1, 0}, {2, 2, 1}));

    const CadResult result = imprinted(shapes);

    EXPECT_EQ(listingOf(*result.model), "body wide\n"
                                        "body narrow\n"
                                        "face wide/face-1: wide\n"
                                        "face wide/front: wide\n"
                                        "face wide/front-2: wide | narrow\n"
                                        "face wide/front-3: wide\n"
                                        "face wide/face-3: wide\n"
                                        "face wide/face-4: wide\n"
                                        "face wide/face-5: wide\n"
                                        "face wide/face-6: wide\n"
                                        "face narrow/face-2: narrow\n"
                                        "face narrow/face-3: narrow\n"
                                        "face narrow/face-4: narrow\n"
                                        "face narrow/face-5: narrow\n"
                                        "face narrow/face-6: narrow\n");
    EXPECT_EQ(result.notes,
              (Strings{"Imprinting divided 1 face where bodies touch in part.",
                       "Face \"wide/front\" is called \"wide/front-2\" here, because \"wide/front\" is taken.",
                       "Face \"wide/front\" is called \"wide/front-3\" here, because \"wide/front\" is taken."}));
}

TEST(Imprint, spaceInCommonGoesToTheFirstSolid)
{
    CadShapes shapes;
    addBox(shapes, "first", box({0, 0, 0}, {3, 1, 1}));
    addBox(shapes, "second", box({2, 0, 0}, {5, 1, 1}));

    const CadResult result = imprinted(shapes);

    ASSERT_EQ(result.model->bodies().size(), 3U);
    EXPECT_EQ(result.notes[0], "Solid 1 (\"first\") is divided into 2 bodies by imprinting.");
    EXPECT_EQ(result.notes[1], "Solid 2 (\"second\") is divided into 2 bodies by imprinting.");
    EXPECT_EQ(result.notes[2],
              "Solid 2 (\"second\") overlaps an earlier solid; the space in common is left to that one.");
    EXPECT_EQ(cadtests::noOfSharedFaces(*result.model), 2U);
}

TEST(Imprint, aSolidThatIsThereTwiceIsReadOnce)
{
    CadShapes shapes;
    addBox(shapes, "one", box({0, 0, 0}, {1, 1, 1}));
    addBox(shapes, "again", box({0, 0, 0}, {1, 1, 1}));

    const CadResult result = imprinted(shapes);

    EXPECT_EQ(result.model->bodies().size(), 1U);
    EXPECT_EQ(result.model->faces().size(), 6U);
    EXPECT_EQ(result.notes,
              (Strings{"Solid 2 (\"again\") overlaps an earlier solid; the space in common is left to that one."}));
}

TEST(Imprint, touchingEdgesShareNoFace)
{
    CadShapes shapes;
    addBox(shapes, "a", box({0, 0, 0}, {1, 1, 1}));
    addBox(shapes, "b", box({1, 1, 0}, {2, 2, 1}));

    const CadResult result = imprinted(shapes);

    EXPECT_EQ(result.model->faces().size(), 12U);
    EXPECT_EQ(cadtests::noOfSharedFaces(*result.model), 0U);
}

TEST(Imprint, aSingleSolidStaysAsItIs)
{
    CadShapes shapes;
    addBox(shapes, "only", box({0, 0, 0}, {1, 1, 1}));

    EXPECT_EQ(imprinted(shapes).model->faces().size(), 6U);
}

} // namespace
