#include "apps/verbs/DiffVerb.h"

#include "apps/LoadedCase.h"
#include "apps/Output.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "tests/apps/ToolRun.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <sstream>
#include <string>

namespace {

using physics::Physics;

std::string dataFile(const std::string& name) { return sourceFile("tests/data/" + name).string(); }

std::string everything() { return dataFile("good-cases/everything.json"); }
std::string changed() { return dataFile("diff/everything-changed.json"); }
std::string boxes() { return dataFile("bad-cases/boxes.json"); }

ToolRun diff(const std::string& first, const std::string& second)
{
    return ToolRun({"diff", first, second, "--geometry", boxes()});
}

/// The set-up of the case with every key, to be changed and saved at different times.
class SavedTwice : public testing::Test {
protected:
    SavedTwice() : m_output(m_notes, m_notes, false, false), m_case(everything(), m_output) {}

    Physics& physics() { return *m_case.built().physics; }
    physics::Volume* volume(std::size_t place) { return physics().volumes().at(place); }
    physics::Boundary* boundary(std::size_t place) { return physics().boundaries().at(place); }

    /// How a text calls a model: ids go on from test to test.
    std::string model(std::size_t place) { return "model " + std::to_string(physics().models().at(place)->id()); }

    /// What is different since `before`, without the count of the differences.
    std::string changesSince(const std::string& before)
    {
        const TemporaryFile first("first.setup", before);
        const TemporaryFile second("second.setup", physics().serialise());
        const ToolRun run = diff(first.path(), second.path());
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(run.code, 1);
        return run.out.substr(0, run.out.rfind('\n', run.out.size() - 2) + 1);
    }

private:
    std::ostringstream m_notes;
    physics::apps::Output m_output;
    physics::apps::LoadedCase m_case;
};

TEST(DiffVerb, everyWayInWhichACaseCanChangeIsTold)
{
    const ToolRun run({"diff", everything(), changed()});

    EXPECT_TRUE(golden::matches(run.out, "diff-everything.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 1);
}

TEST(DiffVerb, toolsGetTheSameAsJson)
{
    const ToolRun run({"diff", "--format=json", everything(), changed()});

    EXPECT_TRUE(golden::matches(run.out, "diff-everything.json"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 1);
}

TEST(DiffVerb, aCaseEqualsItself)
{
    const ToolRun run({"diff", everything(), everything()});

    EXPECT_EQ(run.out, "no differences\n");
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(ToolRun({"diff", "--format=json", everything(), everything()}).out,
              "{\n  \"format\": \"physics-diff\",\n  \"version\": 1,\n  \"matchedBy\": \"names\",\n"
              "  \"differences\": []\n}\n");
}

TEST(DiffVerb, aCaseEqualsItsSavedText)
{
    const TemporaryFile text("everything.setup", "");
    ToolRun({"save", everything(), "-o", text.path()});

    EXPECT_EQ(diff(everything(), text.path()).out, "no differences\n");
    EXPECT_EQ(diff(text.path(), everything()).out, "no differences\n");
    EXPECT_EQ(diff(text.path(), text.path()).out, "no differences\n");
    EXPECT_EQ(diff(everything(), text.path()).code, 0);
}

TEST(DiffVerb, aCaseAndATextMatchModelsByTheirPlaces)
{
    const TemporaryFile text("changed.setup", "");
    ToolRun({"save", changed(), "-o", text.path()});

    const ToolRun run = diff(everything(), text.path());

    EXPECT_NE(run.out.find("domain 1 of model 1: renamed from \"mixture\" to \"blend\"\n"), std::string::npos);
    EXPECT_NE(run.out.find("volume \"bar\": moved from model 2 to model 1\n"), std::string::npos);
    EXPECT_EQ(run.out.find("\nmodel "), std::string::npos);
}

TEST_F(SavedTwice, aRenamedObjectIsOnlyRenamed)
{
    const std::string before = physics().serialise();
    volume(0)->rename("steam");

    EXPECT_EQ(changesSince(before), "volume \"air\": renamed from \"air\" to \"steam\"\n");
}

TEST_F(SavedTwice, aRenamedBoundaryIsOnlyRenamed)
{
    const std::string before = physics().serialise();
    boundary(1)->rename("entry");

    EXPECT_EQ(changesSince(before), "boundary \"air::in\": renamed from \"in\" to \"entry\"\n");
}

TEST_F(SavedTwice, changesAreToldByObject)
{
    const std::string before = physics().serialise();
    volume(1)->setModel(physics().models().at(0));
    boundary(0)->relocate("left/s*", false);
    physics().activateGroup(1);
    physics().settings().at(0)->threadBundle(0)->setZoneIds({7});

    EXPECT_EQ(changesSince(before),
              "volume \"bar\": moved from " + model(1) + " to " + model(0) +
                  "\n"
                  "boundary \"air::bottom\": relocated from \"left/south\" to \"left/s*\"\n"
                  "group 1: removed\n"
                  "solver thread 0 of boundary \"air::in\": zones changed from those of the geometry "
                  "to 7\n");
}

TEST_F(SavedTwice, aShellTypeThatOutlivesItsModelIsNotMistakenForNoShell)
{
    const std::string before = physics().serialise();
    boundary(3)->setShellModel(nullptr);

    EXPECT_EQ(changesSince(before),
              "boundary \"air::top\": shell changed from HeatConduction in " + model(1) +
                  " to none (but of type "
                  "HeatConduction)\n"
                  "solver thread 0 of the shell of boundary \"air::top\": removed\n"
                  "solver thread 0 of the shell of boundary \"air::top\" in interface \"repeat\": removed\n");
}

TEST_F(SavedTwice, anObjectThatWasMadeAnewIsAnotherOne)
{
    const std::string before = physics().serialise();
    physics().interfaces().at(2)->destroy();
    physics().createInterface("turn", boundary(1), boundary(0), physics::InterfaceType::Fan);

    EXPECT_EQ(changesSince(before), "interface \"turn\": removed\ninterface \"turn\": added\n");
}

TEST(DiffVerb, aCaseOfWhichSomethingIsRefusedIsNotFine)
{
    const std::string file = dataFile("bad-cases/refused/unknown-body.json");

    const ToolRun run({"diff", file, file});

    const std::string refusals = ToolRun({"build", file}).err;
    EXPECT_EQ(run.out, "no differences\n");
    EXPECT_EQ(run.err, refusals + refusals);
    EXPECT_EQ(run.code, 1);
}

TEST(DiffVerb, optionsThatHaveNoUseAreRefused)
{
    const ToolRun run = diff(everything(), changed());

    EXPECT_EQ(run.err, everything() + ": a case file says itself which geometry it is about and how to read it; leave "
                                      "--geometry, --imprint, --no-imprint and --bodies-are-families out.\n");
    EXPECT_EQ(run.code, 2);
}

} // namespace
