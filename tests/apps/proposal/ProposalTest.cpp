#include "apps/proposal/Proposal.h"

#include "apps/CaseBuilder.h"
#include "apps/GeometryFile.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"
#include "physics/Physics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

namespace {

using namespace physics::apps;
using gtm::bundled::CgnsPeriodic;
using gtm::bundled::TopologyBuilder;
using physics::BoundaryType;
using physics::InterfaceType;
using physics::VolumeType;
using testing::ElementsAre;
using testing::IsEmpty;

/// What a reader would give for bodies "a" and "b" with some faces.
class FileOf {
public:
    FileOf& bodies(const std::vector<std::string>& ids)
    {
        for (const std::string& id : ids) {
            m_builder.addBody(id);
        }
        return *this;
    }
    FileOf& face(const std::string& id, const std::string& body)
    {
        m_builder.addFace(id, {body, {}, {}});
        return *this;
    }
    FileOf& face(const std::string& id, const std::string& first, const std::string& second)
    {
        m_builder.addFace(id, {first, {}, {}}, TopologyBuilder::Side{second, {}, {}});
        return *this;
    }
    FileOf& condition(const std::string& face, const std::string& type, const std::string& family,
                      const std::string& name)
    {
        m_file.conditions.push_back({face, type, family, name});
        return *this;
    }
    FileOf& family(const std::string& body, const std::string& family)
    {
        m_file.zones.push_back({body, body, family});
        return *this;
    }
    FileOf& periodic(const CgnsPeriodic& pair)
    {
        m_file.periodics.push_back(pair);
        return *this;
    }
    FileOf& renamed(const std::string& id, const std::string& name)
    {
        m_file.renamed[id] = name;
        return *this;
    }

    /// The proposal, after a look that it can be built as it is and leaves nothing uncovered.
    Proposal proposal()
    {
        m_file.model = m_builder.build();
        Proposal proposal = propose(m_file);
        const BuiltCase built = buildCase(proposal.file, *m_file.model);
        EXPECT_THAT(built.refusals, IsEmpty());
        EXPECT_TRUE(built.physics->isTopologyValid(false));
        return proposal;
    }

private:
    TopologyBuilder m_builder;
    GeometryFile m_file;
};

std::string wordsOf(const LedgerEntry& entry)
{
    return entry.inFile + " -> " + entry.inCase + ": " + std::string(inWords(entry.fidelity)) +
           (entry.remark.empty() ? "" : " (" + entry.remark + ")");
}

std::vector<std::string> linesOf(const std::vector<LedgerEntry>& ledger)
{
    std::vector<std::string> lines;
    for (const LedgerEntry& entry : ledger) {
        lines.push_back(wordsOf(entry));
    }
    return lines;
}

CgnsPeriodic periodicPair()
{
    CgnsPeriodic pair;
    pair.name = "repeat";
    pair.firstFace = "a/low";
    pair.secondFace = "a/high";
    return pair;
}

TEST(Proposal, everyConditionTypeBecomesTheTypeOfItsRow)
{
    for (const BoundaryMapping& row : conditionTypes()) {
        const Proposal proposal =
            FileOf().bodies({"a"}).face("a/x", "a").condition("a/x", std::string(row.said), "", "x").proposal();

        const BoundaryType expected = row.type == BoundaryType::Unset ? BoundaryType::Wall : row.type;
        EXPECT_EQ(proposal.file.volumes.at(0).boundaries.at(0).type, expected) << row.said;
        EXPECT_EQ(proposal.ledger.at(1).fidelity, row.fidelity) << row.said;
        EXPECT_EQ(proposal.ledger.at(1).remark.empty(), row.fidelity == Fidelity::Exact) << row.said;
    }
}

TEST(Proposal, everyWordOfAFaceInsideAVolumeBecomesTheTypeOfItsRow)
{
    for (const BoundaryMapping& row : boundaryWords()) {
        const Proposal proposal = FileOf().bodies({"a"}).face("a/" + std::string(row.said) + " 7", "a", "a").proposal();

        EXPECT_EQ(proposal.file.volumes.at(0).boundaries.at(0).type, row.type) << row.said;
        EXPECT_EQ(proposal.ledger.at(1).fidelity, row.fidelity) << row.said;
    }
}

TEST(Proposal, everyWordOfAFamilyBecomesTheVolumeTypeOfItsRow)
{
    for (const VolumeMapping& row : volumeWords()) {
        const Proposal proposal = FileOf().bodies({"a"}).family("a", std::string(row.said)).proposal();

        EXPECT_EQ(proposal.file.volumes.at(0).type, row.type) << row.said;
        EXPECT_EQ(proposal.ledger.at(0).fidelity, row.fidelity) << row.said;
    }
}

TEST(Proposal, theFacesOfOneFamilyBecomeOneBoundary)
{
    const Proposal proposal = FileOf()
                                  .bodies({"a"})
                                  .face("a/1", "a")
                                  .face("a/2", "a")
                                  .face("a/3", "a")
                                  .condition("a/1", "BCWall", "skin", "1")
                                  .condition("a/2", "BCWall", "skin", "2")
                                  .condition("a/3", "BCWallInviscid", "skin", "3")
                                  .proposal();

    EXPECT_THAT(linesOf(proposal.ledger),
                ElementsAre("body \"a\" -> volume \"a\", Fluid: approximate (nothing says what fills it; a fluid is "
                            "assumed)",
                            "family \"skin\", BCWall, 2 faces -> boundary \"a::skin\", Wall: exact",
                            "family \"skin\", BCWallInviscid -> boundary \"a::skin-2\", Wall: approximate (lost: that "
                            "the fluid slips along the wall)",
                            "name \"skin\" -> boundary \"a::skin-2\": exact (the case keeps the name of the file "
                            "beside it)"));
}

TEST(Proposal, aConditionWithoutATypeOfOursIsTakenByItsName)
{
    const Proposal proposal =
        FileOf().bodies({"a"}).face("a/x", "a").condition("a/x", "UserDefined", "", "Symmetry 1").proposal();

    EXPECT_EQ(wordsOf(proposal.ledger.at(1)),
              "condition \"Symmetry 1\", UserDefined -> boundary \"a::Symmetry 1\", Symmetry: exact");
}

TEST(Proposal, theBodiesOfOneFamilyBecomeOneVolumeAndTheirCommonFacesStayInside)
{
    const Proposal proposal = FileOf()
                                  .bodies({"a", "b"})
                                  .family("a", "core fluid")
                                  .family("b", "core fluid")
                                  .face("a/joint", "a", "b")
                                  .proposal();

    ASSERT_EQ(proposal.file.volumes.size(), 1U);
    EXPECT_THAT(std::get<1>(*proposal.file.volumes[0].location), ElementsAre("a", "b"));
    EXPECT_THAT(linesOf(proposal.ledger),
                ElementsAre("family \"core fluid\", 2 bodies -> volume \"core fluid\", Fluid: exact",
                            "1 face inside \"core fluid\" -> nothing; the volume goes through: exact"));
}

TEST(Proposal, facesBetweenVolumesBecomeInterfacesAfterWhatFillsThem)
{
    const auto typeBetween = [](const std::string& first, const std::string& second, const std::string& face) {
        const Proposal proposal = FileOf().bodies({first, second}).face(first + "/" + face, first, second).proposal();
        return proposal.file.interfaces.at(0).type;
    };

    EXPECT_EQ(typeBetween("fluid 1", "fluid 2", "face-1"), InterfaceType::Interior);
    EXPECT_EQ(typeBetween("fluid", "solid", "face-1"), InterfaceType::Wall);
    EXPECT_EQ(typeBetween("fluid 1", "fluid 2", "fan"), InterfaceType::Fan);
    EXPECT_EQ(typeBetween("fluid", "porous", "fan"), InterfaceType::Interior);
    EXPECT_EQ(typeBetween("fluid", "solid", "fan"), InterfaceType::Wall);
}

TEST(Proposal, facesWithoutANameGoTogether)
{
    const Proposal proposal = FileOf()
                                  .bodies({"a", "b"})
                                  .face("a/face-1", "a", "b")
                                  .face("a/face-1-2", "b", "a")
                                  .face("a/face-2", "a")
                                  .face("a/face-3", "a")
                                  .proposal();

    ASSERT_EQ(proposal.file.interfaces.size(), 1U);
    EXPECT_EQ(proposal.file.interfaces[0].name, "a to b");
    EXPECT_EQ(proposal.file.interfaces[0].sides[0].boundary, "a::to b");
    EXPECT_EQ(proposal.file.interfaces[0].sides[1].boundary, "b::to a");
    EXPECT_EQ(proposal.file.volumes[0].boundaries.at(1).name, "rest");
    EXPECT_FALSE(proposal.file.volumes[0].boundaries.at(1).location.has_value());
}

TEST(Proposal, aTypeThatTheVolumeCannotHaveBecomesAWall)
{
    const Proposal proposal = FileOf().bodies({"solid"}).face("solid/inlet", "solid").proposal();

    EXPECT_EQ(wordsOf(proposal.ledger.at(1)), "face \"inlet\" -> boundary \"solid::inlet\", Wall: not possible (a "
                                              "Solid volume cannot have a VelocityInlet boundary)");
}

TEST(Proposal, aFanAtTheOutsideBecomesAWall)
{
    const Proposal proposal = FileOf().bodies({"a"}).face("a/fan", "a").proposal();

    EXPECT_EQ(wordsOf(proposal.ledger.at(1)),
              "face \"fan\" -> boundary \"a::fan\", Wall: not possible (a Fan boundary needs a volume on both sides)");
}

TEST(Proposal, aTranslationIsTakenOver)
{
    CgnsPeriodic pair = periodicPair();
    pair.translation = {0, 0.5, 0};

    const Proposal proposal = FileOf().bodies({"a"}).face("a/low", "a").face("a/high", "a").periodic(pair).proposal();

    ASSERT_EQ(proposal.file.interfaces.size(), 1U);
    EXPECT_EQ(proposal.file.interfaces[0].translation, (std::array<double, 3>{0, 0.5, 0}));
    EXPECT_EQ(wordsOf(proposal.ledger.at(1)), "periodic faces \"a/low\" and \"a/high\" -> interface \"repeat\", "
                                              "Interior, translation: exact");
}

TEST(Proposal, aRotationAboutOneAxisIsTakenOverInDegrees)
{
    CgnsPeriodic pair = periodicPair();
    pair.kind = CgnsPeriodic::Kind::Rotation;
    pair.rotationAngle = {0, 0, -1.5707963267948966};
    pair.rotationCentre = {1, 2, 3};

    const Proposal proposal = FileOf().bodies({"a"}).face("a/low", "a").face("a/high", "a").periodic(pair).proposal();

    ASSERT_EQ(proposal.file.interfaces.size(), 1U);
    EXPECT_NEAR(proposal.file.interfaces[0].rotation->angle, -90, 1e-12);
    EXPECT_EQ(proposal.file.interfaces[0].rotation->origin, (std::array<double, 3>{1, 2, 3}));
    EXPECT_EQ(proposal.file.interfaces[0].rotation->direction, (std::array<double, 3>{0, 0, 1}));
}

TEST(Proposal, aPeriodicityThatWeDoNotHaveLeavesTwoBoundaries)
{
    CgnsPeriodic pair = periodicPair();
    pair.kind = CgnsPeriodic::Kind::Rotation;
    pair.rotationAngle = {0.1, 0.1, 0};

    const Proposal proposal = FileOf().bodies({"a"}).face("a/low", "a").face("a/high", "a").periodic(pair).proposal();

    EXPECT_THAT(proposal.file.interfaces, IsEmpty());
    EXPECT_EQ(wordsOf(proposal.ledger.at(1)),
              "periodic faces \"a/low\" and \"a/high\" -> boundaries \"a::low\" and \"a::high\", Wall: not possible (a "
              "turn about several axes, or with a shift, is no periodicity of ours)");
}

TEST(Proposal, namesThatAreNotAsInTheFileAreKeptBesideTheirs)
{
    const Proposal proposal = FileOf()
                                  .bodies({"a_b"})
                                  .renamed("a_b", "a,b")
                                  .face("a_b/x", "a_b")
                                  .face("a_b/face-1", "a_b")
                                  .renamed("a_b/x", "a_b/in::let")
                                  .proposal();

    std::vector<std::string> names;
    for (const CaseFile::NameInFile& name : proposal.file.names) {
        names.push_back(name.of + " " + name.name + " = " + name.inFile);
    }
    EXPECT_EQ(proposal.file.volumes.at(0).name, "a,b");
    EXPECT_EQ(proposal.file.volumes.at(0).boundaries.at(1).name, "rest");
    EXPECT_THAT(names, ElementsAre("boundary a,b::in_let = in::let", "region a_b = a,b", "region a_b/x = a_b/in::let"));
}

} // namespace
