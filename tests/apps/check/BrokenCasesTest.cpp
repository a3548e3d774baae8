#include "apps/LoadedCase.h"
#include "apps/Output.h"
#include "apps/check/CheckReport.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/Volume.h"
#include "tests/apps/ToolRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

// Each case of tests/data/broken-cases has the exact list of its findings beside it.

namespace physics::apps {
namespace {

std::vector<std::string> brokenCases()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(sourceFile("tests/data/broken-cases"))) {
        if (entry.path().extension() == ".json" && entry.path().stem() != "topology") {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

class BrokenCase : public testing::TestWithParam<std::string> {
protected:
    BrokenCase() : m_loaded(file(), m_output, LoadedCase::Restrictions::Off) {}

    static std::filesystem::path file() { return sourceFile("tests/data/broken-cases/" + GetParam() + ".json"); }

    const Physics& physics() const { return *m_loaded.built().physics; }

    CheckReport checked(bool ignoreWarnings = false) const
    {
        return check(physics(), m_loaded.locationModel(), m_loaded.built().refusals, ignoreWarnings);
    }

    bool hasRefusals() const { return !m_loaded.built().refusals.empty(); }

private:
    std::ostringstream m_stream;
    Output m_output{m_stream, m_stream, false, false};
    LoadedCase m_loaded;
};

bool isOfARule(FindingKind kind)
{
    switch (kind) {
    case FindingKind::TypeAgainstVolume:
    case FindingKind::TypeAgainstInterface:
    case FindingKind::InternalTypeOutside:
    case FindingKind::UnsharedMesh:
        return true;
    default:
        return false;
    }
}

TEST_P(BrokenCase, givesExactlyItsFindings)
{
    const CheckReport report = checked();
    std::string text;
    for (const Finding* finding : report.findings()) {
        text += std::string(rowOf(finding->kind).id) + " " + finding->subject.type + " " + finding->subject.name +
                "\n    " + finding->message + "\n";
    }

    EXPECT_EQ(text, contentOf(file().replace_extension(".expected")));
}

TEST_P(BrokenCase, isInvalidForTheLibraryExactlyWhenThereIsAnError)
{
    const CheckReport report = checked();
    const bool isValid = physics().isValid(true) && !hasRefusals();

    EXPECT_EQ(report.noOf(Severity::Error) == 0, isValid);
    if (report.findings().empty()) {
        EXPECT_TRUE(physics().isValid(false));
    }
}

TEST_P(BrokenCase, hasAFindingOfARuleExactlyWhereTheRulesComplain)
{
    const CheckReport report = checked();
    std::vector<const Region*> found;
    for (const Finding* finding : report.findings()) {
        if (isOfARule(finding->kind)) {
            found.push_back(finding->region);
        }
    }
    const auto isFound = [&found](const Region* region) {
        return std::find(found.begin(), found.end(), region) != found.end();
    };

    for (const Boundary* boundary : physics().boundaries()) {
        EXPECT_EQ(isFound(boundary), !boundary->isPhysicsValid(true)) << boundary->fullName();
    }
    for (const Volume* volume : physics().volumes()) {
        const std::vector<Boundary*> boundaries = volume->boundaries();
        const bool isAnyFound = isFound(volume) || std::any_of(boundaries.begin(), boundaries.end(), isFound);
        EXPECT_EQ(isAnyFound, !volume->isPhysicsValid(true)) << volume->fullName();
    }
    for (const Interface* interface : physics().interfaces()) {
        const bool isAnyFound = isFound(interface) || isFound(interface->boundary(Side::First)) ||
                                isFound(interface->boundary(Side::Second));
        EXPECT_EQ(isAnyFound, !interface->isPhysicsValid(true)) << interface->fullName();
    }
}

TEST_P(BrokenCase, keepsOnlyItsErrorsWhenWarningsAreIgnored)
{
    const CheckReport all = checked();
    const CheckReport errors = checked(true);

    EXPECT_EQ(errors.noOf(Severity::Error), all.noOf(Severity::Error));
    EXPECT_EQ(errors.noOf(Severity::Warning), 0U);
}

TEST_P(BrokenCase, hasTheLinesOfTheLibrary)
{
    const CheckReport report = checked();
    std::vector<std::string> lines;
    for (const CheckReport::Object& object : report.objects) {
        if (!object.lines.empty() && !lines.empty()) {
            lines.emplace_back();
        }
        lines.insert(lines.end(), object.lines.begin(), object.lines.end());
    }

    EXPECT_EQ(lines, physics().validate(true, false));
}

TEST(BrokenCases, areMany) { EXPECT_GE(brokenCases().size(), 40U); }

std::string nameOf(const testing::TestParamInfo<std::string>& info)
{
    std::string name = info.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Table, BrokenCase, testing::ValuesIn(brokenCases()), nameOf);

} // namespace
} // namespace physics::apps
