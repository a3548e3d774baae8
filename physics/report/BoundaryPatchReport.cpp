#include "physics/BoundaryPatch.h"

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Peek.h"
#include "physics/Settings.h"
#include "physics/Volume.h"
#include "physics/report/Blocks.h"
#include "physics/report/Words.h"

#include <ostream>

namespace physics {
namespace {

constexpr std::string_view rule = "|   .........................................................................\n";

} // namespace

void appendBlock(std::string& text, const BoundaryPatch& patch, bool closes)
{
    const Settings* ofBoundary = Peek::settings(patch, SettingsType::VolumeSettings);
    const Settings* ofInterface = Peek::settings(patch, SettingsType::InterfaceSettings);
    const Settings* ofShell = Peek::settings(patch, SettingsType::ShellSettings);
    const BoundaryPatch* paired = patch.pairedPatch();

    text.append(rule).append("|   BoundaryPatch\n");
    appendLine(text, "|   id                 = ", inWords(patch.id()));
    appendLine(text, "|   Name               = ", patch.name());
    appendLine(text, "|   isChild?           = ", inWords(patch.isChild()));
    appendLine(text, "|   Boundary settings  = ", idOf(ofBoundary));
    appendLine(text, "|   Interface settings = ", idOf(ofInterface));
    appendLine(text, "|   Shell settings     = ", idOf(ofShell));
    appendLine(text, "|   Boundary           = ", nameOf(patch.boundary()));
    appendLine(text, "|   Interface          = ",
               patch.interface() == nullptr ? "NON-OVERLAPPING" : nameOf(patch.interface()));
    appendLine(text, "|   Volume             = ", nameOf(patch.volume()));
    appendLine(text, "|   Paired patch       = ", paired == nullptr ? std::string(none) : paired->name());
    if (ofBoundary != nullptr)
        appendBlock(text, *ofBoundary, "Boundary settings");
    if (ofInterface != nullptr)
        appendBlock(text, *ofInterface, "Interface settings");
    if (ofShell != nullptr)
        appendBlock(text, *ofShell, "Shell settings");
    if (closes)
        text += rule;
}

void BoundaryPatch::dump(std::ostream& stream, bool closes) const
{
    std::string text;
    appendBlock(text, *this, closes);
    writeOut(stream, text);
}

} // namespace physics
