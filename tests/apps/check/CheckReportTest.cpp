#include "apps/check/CheckReport.h"

#include "gtm/Body.h"
#include "gtm/FaceUse.h"
#include "gtm/Interface.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/Volume.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

// What no case file can ask for: the check of a set-up that was changed after it was built.

namespace physics::apps {
namespace {

std::vector<std::string> idsOf(const CheckReport& report)
{
    std::vector<std::string> ids;
    for (const Finding* finding : report.findings()) {
        ids.push_back(std::string(rowOf(finding->kind).id) + " " + finding->subject.name);
    }
    return ids;
}

/// Two boxes in a row, each a volume with a boundary on every face.
class ChangedSetUp : public testing::Test {
protected:
    ChangedSetUp()
    {
        gtm::bundled::TopologyBuilder builder;
        builder.addBody("left");
        builder.addBody("right");
        builder.addFace("in", {"left", {}, {}});
        builder.addFace("between", {"left", {}, {}}, gtm::bundled::TopologyBuilder::Side{"right", {}, {}});
        builder.addFace("out", {"right", {}, {}});
        model = builder.build();
        physics = std::make_unique<Physics>(model.get(), false);
        left = physics->createVolume("left", std::string("left"), VolumeType::Fluid);
        right = physics->createVolume("right", std::string("right"), VolumeType::Fluid);
        in = left->createBoundary("in", std::string("in"), BoundaryType::VelocityInlet);
        leftContact = left->createBoundary("contact", std::string("between"), BoundaryType::Wall);
        out = right->createBoundary("out", std::string("out"), BoundaryType::VelocityInlet);
        rightContact = right->createBoundary("contact", std::string("between"), BoundaryType::Wall);
    }

    CheckReport checked() const { return check(*physics, *model, {}, false); }

    std::unique_ptr<gtm::bundled::LocationModel> model;
    std::unique_ptr<Physics> physics;
    Volume* left = nullptr;
    Volume* right = nullptr;
    Boundary* in = nullptr;
    Boundary* out = nullptr;
    Boundary* leftContact = nullptr;
    Boundary* rightContact = nullptr;
};

TEST_F(ChangedSetUp, isSoundAtFirst)
{
    EXPECT_EQ(idsOf(checked()), std::vector<std::string>{});
    EXPECT_TRUE(physics->isValid(false));
}

TEST_F(ChangedSetUp, hasAnInterfaceWithTwoVolumesOnOneSide)
{
    const Interface* contact = physics->createInterface("contact", leftContact, rightContact, InterfaceType::Wall);
    EXPECT_EQ(idsOf(checked()), std::vector<std::string>{});

    contact->interface()->relocate({{in->boundary(), out->boundary()}, {rightContact->boundary()}}, false);

    const CheckReport report = checked();
    ASSERT_EQ(idsOf(report), std::vector<std::string>{"PS010 contact"});
    EXPECT_EQ(report.findings().front()->message,
              "The interface \"contact\" is not valid. The first side has boundaries of two interiors, \"left\" and "
              "\"right\".");
}

TEST_F(ChangedSetUp, hasABoundaryTypeThatItsVolumeDoesNotAllowAfterARetype)
{
    physics->createInterface("gate", in, out, InterfaceType::Fan);
    EXPECT_EQ(idsOf(checked()), std::vector<std::string>{});

    left->setType(VolumeType::Solid);

    EXPECT_EQ(in->type(), BoundaryType::VelocityInlet) << "the interface allows no type next to a solid";
    EXPECT_EQ(idsOf(checked()), (std::vector<std::string>{"PS012 left::in", "PS013 gate"}));
}

TEST_F(ChangedSetUp, hasAVolumeAndABoundaryWithoutAType)
{
    right->setType(VolumeType::Unset);

    const CheckReport report = checked();

    ASSERT_EQ(idsOf(report), (std::vector<std::string>{"PS012 right::contact", "PS012 right::out"}));
    EXPECT_EQ(report.findings().back()->message,
              "The boundary \"right::out\" is of type VelocityInlet, which a volume of type Unset does not allow; no "
              "type is allowed.");
    EXPECT_EQ(report.findings().back()->details.at("allowed"), std::vector<std::string>{});
}

TEST_F(ChangedSetUp, isCoveredWithNames)
{
    in->relocate(std::string("in, between"), false);
    out->destroy();

    const Coverage coverage = checked().coverage;

    ASSERT_EQ(coverage.faceSides.size(), 4U);
    EXPECT_EQ(coverage.noInOne, 2U);
    EXPECT_EQ(coverage.noInSeveral, 1U);
    EXPECT_EQ(coverage.noInNoneOutside, 1U);
    EXPECT_EQ(coverage.noInNoneInside, 0U);
    EXPECT_EQ(coverage.faceSides[1].faceUse->id(), "between@left");
    EXPECT_EQ(coverage.ownersOf(coverage.faceSides[1]), (std::vector<std::string>{"left::contact", "left::in"}));
    EXPECT_EQ(coverage.faceSides[3].faceUse->id(), "out@right");
    EXPECT_EQ(coverage.ownersOf(coverage.faceSides[3]), std::vector<std::string>{});
}

/// Names are looked up anew when a set-up is restored: of two volumes, boundaries and interfaces called the same, the
/// older drops out of its list then.
TEST_F(ChangedSetUp, isCheckedToTheEndAlthoughEqualNamesHideSomeOfIt)
{
    physics->createInterface("contact", leftContact, rightContact, InterfaceType::Wall);
    physics->createInterface("spare", leftContact, rightContact, InterfaceType::Wall)->rename("contact");
    in->destroy();
    left->createBoundary("in", std::string("in"), BoundaryType::Interior);
    right->rename("left");
    out->rename("contact");
    const int hidden = left->id();
    ASSERT_TRUE(physics->restore(physics->serialise()));
    ASSERT_EQ(physics->volumes(), std::vector<Volume*>{physics->findVolumeById(hidden + 1)});

    const CheckReport report = checked();

    EXPECT_EQ(idsOf(report),
              (std::vector<std::string>{"PS018 left", "PS018 left::contact", "PS014 left::in", "PS018 contact"}));
    for (const CheckReport::Object& object : report.objects)
        EXPECT_TRUE(!object.findings.empty() || !object.lines.empty()) << object.region->fullName();
    EXPECT_EQ(report.objects.front().region, physics->findVolumeById(hidden));
    EXPECT_EQ(
        report.findings().front()->message,
        "The volume \"left\" with the id " + std::to_string(hidden) +
            " is not in the lists of the set-up, because another volume has its name. Give it a name of its own.");
    EXPECT_EQ(report.objects.front().lines,
              std::vector<std::string>{"Error: One of more of the boundaries has an error."});
    EXPECT_EQ(report.coverage.noInOne, 4U);
    EXPECT_EQ(report.coverage.ownersOf(report.coverage.faceSides[0]), std::vector<std::string>{"left::in"});
    EXPECT_EQ(report.coverage.volumes.size(), 2U);
    EXPECT_EQ(report.coverage.boundaries.size(), 4U);
}

TEST_F(ChangedSetUp, leavesMaskedBodiesOutOfItsCoverage)
{
    physics->maskBodies({model->bodies()[1]});

    const Coverage coverage = checked().coverage;

    EXPECT_EQ(coverage.maskedBodies, std::vector<const gtm::Body*>{model->bodies()[1]});
    EXPECT_EQ(coverage.faceSides.size(), 2U);
}

TEST_F(ChangedSetUp, searchesNearNamesForTheFirstOfVeryManyOnly)
{
    for (int i = 0; i < 101; ++i) {
        in->volume()->createBoundary("b" + std::to_string(1000 + i), std::string("inn"), BoundaryType::Wall);
    }

    const CheckReport report = checked();
    const std::vector<const Finding*> findings = report.findings();

    ASSERT_EQ(findings.size(), 101U);
    EXPECT_EQ(findings[99]->details.at("nearest"), std::vector<std::string>{"in"});
    EXPECT_EQ(findings[100]->details.count("nearest"), 0U);
    EXPECT_EQ(findings[100]->message,
              "The boundary \"left::b1100\" has a location that cannot be resolved. Not found: \"inn\".");
}

} // namespace
} // namespace physics::apps
