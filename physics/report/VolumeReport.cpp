#include "physics/Volume.h"

#include "physics/Boundary.h"
#include "physics/Model.h"
#include "physics/Peek.h"
#include "physics/Settings.h"
#include "physics/TypeNames.h"
#include "physics/report/Blocks.h"
#include "physics/report/ListWriter.h"
#include "physics/report/Validity.h"
#include "physics/report/Words.h"

#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"

#include <ostream>

namespace physics {
namespace {

constexpr std::string_view rule = "+-----------------------------------------------------------------------------\n";
constexpr ListFormat inBlock = {Brackets::Braces, "|"};

void appendState(std::string& text, const Volume& volume)
{
    const Validity validity(volume);
    appendLine(text, "| Name                  = ", volume.fullName());
    appendLine(text, "| id                    = ", inWords(volume.id()));
    appendLine(text, "| Volume type           = ", displayName(volume.type()));
    appendLine(text, "| Model                 = ", idOf(volume.model()));
    appendLine(text, "| Settings              = ", idOf(Peek::settings(volume)));
    appendLine(text, "| State                 = ", displayName(volume.state()));
    appendLine(text, "| Is active?            = ", inWords(volume.isActive()));
    appendLine(text, "| Is empty?             = ", inWords(volume.isEmpty()));
    appendLine(text, "| Is topology valid?    = ", inWords(validity.topology));
    appendLine(text, "| Is physics valid?     = ", inWords(validity.physics));
    appendLine(text, "| Is valid?             = ", inWords(validity.all));
    appendLine(text, "| Default volume?       = ", inWords(volume.isDefaultVolume()));
    appendLine(text, "| Has default boundary? = ", inWords(volume.hasDefaultBoundary()));
    appendLine(text, "| Default boundary      = ", nameOf(volume.defaultBoundary()));
}

void appendPlace(std::string& text, const Volume& volume, const std::vector<Volume*>& overlapping)
{
    const std::vector<gtm::FaceUse*> unusedFaceUses = volume.unusedFaceUses();
    const std::vector<gtm::Face*> internalFaces = volume.internalFaces();
    const std::vector<gtm::Face*> unusedInternalFaces = volume.unusedInternalFaces();
    const std::vector<std::string> unresolvableNames = volume.unresolvableNames();

    appendLine(text,
               "| Location              = ", volume.isDefaultVolume() ? "<DEFAULT>" : locationText(volume.location()));
    appendList(text, " Unresolvable names    = ", inQuotes(unresolvableNames), inBlock);
    appendList(text, " Bodies                = ", regionIds(volume.bodies()), inBlock);
    appendList(text, " Zone ids              = ", inWords(volume.zoneIds()), inBlock);
    appendLine(text, "| Activation group             = ", inWords(volume.activationGroup()));
    appendLine(text, "| No. of boundaries            = ", inWords(volume.boundaries().size()));
    appendLine(text, "| No. of unused face-uses      = ", inWords(unusedFaceUses.size()));
    appendLine(text, "| No. of internal faces        = ", inWords(internalFaces.size()));
    appendLine(text, "| No. of unused internal faces = ", inWords(unusedInternalFaces.size()));
    appendLine(text, "| No. of overlapping volumes   = ", inWords(overlapping.size()));
    appendLine(text, "| No. of unresolvable names    = ", inWords(unresolvableNames.size()));
    appendList(text, " Unused face-uses:      ", regionIds(unusedFaceUses), inBlock);
    appendList(text, " Internal faces:        ", regionIds(internalFaces), inBlock);
    appendList(text, " Unused internal faces: ", regionIds(unusedInternalFaces), inBlock);
}

void appendSettings(std::string& text, const Settings* settings, std::string_view heading)
{
    if (settings == nullptr)
        appendLine(text, "|   ", none);
    else
        appendBlock(text, *settings, heading);
}

void appendOverlaps(std::string& text, const Volume& volume, const std::vector<Volume*>& overlapping)
{
    if (overlapping.empty())
        return;
    text += "| Overlapping volumes:\n"
            "| ====================\n";
    for (const Volume* other : overlapping)
        appendList(text, " " + nameOf(other) + ": ", regionIds(volume.overlap(other)), inBlock);
}

} // namespace

void appendBlock(std::string& text, const Volume& volume, bool closes)
{
    const std::vector<Volume*> overlapping = volume.overlappingVolumes();

    text.append(rule).append("| Volume\n");
    appendState(text, volume);
    appendPlace(text, volume, overlapping);
    text += "| Settings:\n";
    appendSettings(text, Peek::settings(volume), "");
    text += "| Internal settings:\n";
    appendSettings(text, Peek::internalSettings(volume), "Internal settings");
    text += "| Boundaries:\n"
            "| ===========\n";
    for (const Boundary* boundary : volume.boundaries())
        appendBlock(text, *boundary, closes);
    appendOverlaps(text, volume, overlapping);
}

void Volume::dump(std::ostream& stream, bool closes) const
{
    std::string text;
    appendBlock(text, *this, closes);
    writeOut(stream, text);
}

} // namespace physics
