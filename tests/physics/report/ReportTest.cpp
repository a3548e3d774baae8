#include "gtm/Face.h"
#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "tests/golden/Golden.h"
#include "tests/physics/PhysicsCase.h"
#include "tests/physics/report/SetUps.h"

#include <gtest/gtest.h>

#include <ios>
#include <locale>
#include <sstream>
#include <string>
#include <vector>

namespace physics {
namespace {

std::string report(const Physics& physics)
{
    std::ostringstream stream;
    physics.dump(stream);
    return stream.str();
}

/// The blocks of everything in the set-up.
std::string blocks(const setups::SetUp& setUp)
{
    std::ostringstream stream;
    for (const Volume* volume : setUp.physics->volumes())
        volume->dump(stream, true);
    for (const Interface* interface : setUp.physics->interfaces())
        interface->dump(stream, false);
    if (setUp.ended != nullptr)
        setUp.ended->dump(stream, false);
    for (const Model* model : setUp.physics->models())
        model->dump(stream);
    return stream.str();
}

/// Decimal commas and grouped digits, as a locale of the platform may have them.
class CommasAndGroups : public std::numpunct<char> {
protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\1"; }
    std::string do_truename() const override { return "wahr"; }
};

std::string everything(const setups::SetUp& setUp) { return report(*setUp.physics) + blocks(setUp); }

/// What can be seen of a set-up without asking for settings.
std::vector<int> idsDrawn()
{
    return {modelIdCounter(),     volumeIdCounter(), boundaryIdCounter(),
            interfaceIdCounter(), patchIdCounter(),  settingsIdCounter()};
}

class ReportOf : public testing::TestWithParam<setups::Made (*)()> {};
class BlocksOf : public ReportOf {};

TEST_P(ReportOf, listsTheSetUp)
{
    const setups::Made made = GetParam()();

    EXPECT_TRUE(golden::matches(report(*made->physics), "report/" + made->name + ".txt"));
}

TEST_P(BlocksOf, areWrittenByEveryObject)
{
    const setups::Made made = GetParam()();

    EXPECT_TRUE(golden::matches(blocks(*made), "report/" + made->name + "-blocks.txt"));
}

TEST_P(ReportOf, changesNothing)
{
    const setups::Made made = GetParam()();
    const std::string saved = made->physics->serialise();
    const std::vector<int> ids = idsDrawn();
    const std::size_t noOfSettings = made->physics->settings().size();
    const std::vector<std::string> calls = made->world.calls();

    everything(*made);

    EXPECT_EQ(idsDrawn(), ids);
    EXPECT_EQ(made->physics->settings().size(), noOfSettings);
    EXPECT_EQ(made->world.calls(), calls);
    EXPECT_EQ(made->physics->serialise(), saved);
}

TEST_P(ReportOf, isTheSameTwice)
{
    const setups::Made made = GetParam()();

    EXPECT_EQ(everything(*made), everything(*made));
}

TEST_P(ReportOf, isTheSameOverASetUpMadeAgain)
{
    const setups::Made made = GetParam()();
    const setups::Made again = GetParam()();

    EXPECT_EQ(everything(*made), everything(*again));
}

TEST_P(ReportOf, isTheSameInEveryLocale)
{
    const setups::Made made = GetParam()();
    const std::string expected = everything(*made);
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommasAndGroups));

    const std::string text = everything(*made);

    std::locale::global(before);
    EXPECT_EQ(text, expected);
}

TEST_P(ReportOf, neitherMindsNorChangesTheStateOfTheStream)
{
    const setups::Made made = GetParam()();
    std::ostringstream stream;
    stream << std::hex << std::showbase << std::left << std::boolalpha << std::scientific;
    stream.fill('#');
    stream.precision(1);
    stream.width(50);
    const std::ios::fmtflags flags = stream.flags();

    made->physics->dump(stream);

    EXPECT_EQ(stream.str(), report(*made->physics));
    EXPECT_EQ(stream.flags(), flags);
    EXPECT_EQ(stream.fill(), '#');
    EXPECT_EQ(stream.precision(), 1);
    EXPECT_EQ(stream.width(), 50);
}

std::string nameOf(const testing::TestParamInfo<setups::Made (*)()>& instance)
{
    std::string name = instance.param()->name;
    std::erase(name, '-');
    return name;
}

INSTANTIATE_TEST_SUITE_P(SetUp, ReportOf, testing::ValuesIn(setups::all()), nameOf);
INSTANTIATE_TEST_SUITE_P(SetUp, BlocksOf, testing::ValuesIn(setups::allWithObjects()), nameOf);

TEST(Report, blocksLeaveTheStateOfTheStreamAlone)
{
    const setups::Made made = setups::models();
    const Volume* volume = made->physics->volumes().front();
    std::ostringstream plain;
    volume->dump(plain, true);
    std::ostringstream stream;
    stream << std::hex << std::left;
    stream.fill('#');
    stream.width(50);

    volume->dump(stream, true);

    EXPECT_EQ(stream.str(), plain.str());
    EXPECT_EQ(stream.fill(), '#');
    EXPECT_EQ(stream.width(), 50);
}

TEST(Report, printsNothingAboutMeshesThatAreNotShared)
{
    const setups::Made made = setups::models();
    gtm::Face* baffle = made->physics->findVolumeById(1)->unusedInternalFaces().front();
    made->world.sideZones(baffle->secondFaceUse(), {{8, 0}}); // no longer the zone of the first side
    reportCreationFailures(*made->physics);
    const PrintedText printed;

    everything(*made);

    EXPECT_EQ(printed.text(), "");
    made->physics->zoneIds();
    EXPECT_NE(printed.text(), "");
}

TEST(Report, endsWithAFlush)
{
    struct Counting : std::stringbuf {
        int noOfFlushes = 0;
        int sync() override { return ++noOfFlushes, 0; }
    } buffer;
    std::ostream stream(&buffer);

    setups::empty()->physics->dump(stream);

    EXPECT_EQ(buffer.noOfFlushes, 1);
}

TEST(Report, patchBlockClosesWithItsRuleWhenAsked)
{
    const setups::Made made = setups::defaults();
    const BoundaryPatch* patch = made->physics->boundaries().front()->patch(nullptr);
    const std::string rule = "|   .........................................................................\n";
    std::ostringstream open;
    std::ostringstream closed;

    patch->dump(open, false);
    patch->dump(closed, true);

    EXPECT_EQ(closed.str(), open.str() + rule);
}

TEST(Report, settingsBlockHasTheGivenHeadingOrSettings)
{
    const setups::Made made = setups::defaults();
    const Settings* settings = made->physics->findSettingsById(5);
    std::ostringstream named;
    std::ostringstream unnamed;

    settings->dump(named, false, "Shell settings");
    settings->dump(unnamed, true, "");

    EXPECT_NE(named.str().find("\n|   Shell settings\n"), std::string::npos);
    EXPECT_NE(unnamed.str().find("\n|   Settings\n"), std::string::npos);
}

TEST(Report, detachedSettingsHaveNoObjects)
{
    const setups::Made made = setups::models();
    made->physics->findVolumeById(1)->destroy();
    std::ostringstream stream;

    made->physics->findSettingsById(6)->dump(stream, false, "Detached");

    EXPECT_EQ(stream.str(), "|   . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . \n"
                            "|   Detached\n"
                            "|   . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . \n"
                            "|   id            = 6\n"
                            "|   Name          = Internal settings\n"
                            "|   Model         = 1\n"
                            "|   Topology Type = Internal\n"
                            "|   Is active?    = false\n"
                            "|   Threads       = \n"
                            "|     0: 102 Interior [1] {}\n"
                            "|   Volume        = <NONE>\n"
                            "|   Boundary      = <NONE>\n"
                            "|   Interface     = <NONE>\n");
}

TEST(Report, bundleLineStandsBehindThePrefix)
{
    const setups::Made made = setups::models();
    std::ostringstream stream;

    made->physics->findThreadBundleByThreadId(101)->dump(stream, "> ");

    EXPECT_EQ(stream.str(), "> 1: 101 Fluid [10] {-42, 41}*\n");
}

TEST(Report, zonesBehindAFullLineOfDomainsShareLinesOfTheirOwn)
{
    const setups::Made made = setups::defaults();
    ThreadBundle* bundle = made->physics->findThreadBundleByThreadId(11);
    bundle->setDomainIds({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18});
    bundle->setZoneIds({1001, 1002, 1003, 1004, 1005, 1006, 1007});
    std::ostringstream stream;

    bundle->dump(stream, "> ");

    // The domains end in column 75, where a list of its own would have to wrap in front of every zone.
    EXPECT_EQ(stream.str(), "> 0: 11 Fluid [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18] "
                            "{1001, 1002, 1003, 1004, 1005, \n> " +
                                std::string(77, ' ') + "1006, 1007}*\n");
}

TEST(Report, domainTableStandsBehindThePrefix)
{
    const setups::Made made = setups::defaults();
    std::ostringstream stream;

    made->physics->primaryModel()->dumpDomains(stream, "| ");

    EXPECT_EQ(stream.str(), "| Id  Type      Symbol   Name\n"
                            "|  1  Geometry  default  Default\n");
}

} // namespace
} // namespace physics
