#include "physics/Boundary.h"

#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Peek.h"
#include "physics/Settings.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"
#include "physics/report/Blocks.h"
#include "physics/report/ListWriter.h"
#include "physics/report/Validity.h"
#include "physics/report/Words.h"

#include "gtm/FaceUse.h"

#include <ostream>

namespace physics {
namespace {

constexpr std::string_view rule = "+ - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - - -\n";
constexpr ListFormat inBlock = {Brackets::Braces, "|"};

/// The settings of the piece that lies in no interface: none or one.
std::vector<std::string> ownSettings(const Boundary& boundary, SettingsType kind)
{
    const Settings* settings = Peek::settings(*boundary.patch(nullptr), kind);
    return settings == nullptr ? std::vector<std::string>() : std::vector<std::string>{idOf(settings)};
}

void appendKind(std::string& text, const Boundary& boundary)
{
    appendLine(text, "|   Name                     = ", boundary.fullName());
    appendLine(text, "|   id                       = ", inWords(boundary.id()));
    appendLine(text, "|   Boundary type            = ", displayName(boundary.type()));
    appendLine(text, "|   Shell type               = ", displayName(boundary.shellType()));
    appendLine(text, "|   Shell model              = ", idOf(boundary.shellModel()));
    appendList(text, "   Boundary settings        = ", ownSettings(boundary, SettingsType::VolumeSettings), inBlock);
    appendList(text, "   Shell model settings     = ", ownSettings(boundary, SettingsType::ShellSettings), inBlock);
    appendList(text, "   Interface model settings = ", ownSettings(boundary, SettingsType::InterfaceSettings), inBlock);
}

void appendState(std::string& text, const Boundary& boundary)
{
    const Validity validity(boundary);
    appendLine(text, "|   State                    = ", displayName(boundary.state()));
    appendLine(text, "|   Volume                   = ", nameOf(boundary.volume()));
    appendList(text, "   Interfaces               = ", namesOf(boundary.interfaces()), inBlock);
    appendLine(text, "|   Pair                     = ", nameOf(boundary.pair()));
    appendLine(text, "|   Is active?               = ", inWords(boundary.isActive()));
    appendLine(text, "|   Is empty?                = ", inWords(boundary.isEmpty()));
    appendLine(text, "|   Is topology valid?       = ", inWords(validity.topology));
    appendLine(text, "|   Is physics valid?        = ", inWords(validity.physics));
    appendLine(text, "|   Is valid?                = ", inWords(validity.all));
    appendLine(text, "|   Default boundary?        = ", inWords(boundary.isDefaultBoundary()));
}

std::vector<std::string> tagNames(const Boundary& boundary)
{
    std::vector<std::string> names;
    for (const BoundaryTag tag : boundary.tags())
        names.push_back(displayName(tag));
    return names;
}

void appendPlace(std::string& text, const Boundary& boundary)
{
    appendLine(text, "|   Location                 = ",
               boundary.isDefaultBoundary() ? "<DEFAULT>" : locationText(boundary.location()));
    appendList(text, "   Unresolvable names       = ", inQuotes(boundary.unresolvableNames()), inBlock);
    appendList(text, "   Face-uses                = ", regionIds(boundary.faceUses()), inBlock);
    appendList(text, "   Zone ids                 = ", inWords(boundary.zoneIds()), inBlock);
    appendList(text, "   Tags                     = ", tagNames(boundary), inBlock);
}

void appendOverlaps(std::string& text, const Boundary& boundary, const std::vector<Boundary*>& overlapping)
{
    if (overlapping.empty())
        return;
    text += "|   Overlapping boundaries:\n"
            "|   =======================\n";
    for (const Boundary* other : overlapping)
        appendList(text, "   " + (other == nullptr ? std::string(none) : other->name()) + ": ",
                   regionIds(boundary.overlap(other)), inBlock);
}

} // namespace

void appendBlock(std::string& text, const Boundary& boundary, bool closes)
{
    const std::vector<BoundaryPatch*> patches = boundary.patches();
    const std::vector<Boundary*> overlapping = boundary.overlappingBoundaries();

    text.append(rule).append("| Boundary\n");
    appendKind(text, boundary);
    appendState(text, boundary);
    appendPlace(text, boundary);
    appendLine(text, "|   No. of patches                = ", inWords(patches.size()));
    appendLine(text, "|   No. of overlapping boundaries = ", inWords(overlapping.size()));
    appendLine(text, "|   No. of unresolvable names     = ", inWords(boundary.unresolvableNames().size()));
    text += "|   Patches:\n"
            "|   ========\n";
    for (const BoundaryPatch* patch : patches)
        appendBlock(text, *patch, closes);
    appendOverlaps(text, boundary, overlapping);
}

void Boundary::dump(std::ostream& stream, bool closes) const
{
    std::string text;
    appendBlock(text, *this, closes);
    writeOut(stream, text);
}

} // namespace physics
