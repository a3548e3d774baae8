#include "physics/Physics.h"

#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Peek.h"
#include "physics/Settings.h"
#include "physics/Volume.h"
#include "physics/report/ListWriter.h"
#include "physics/report/Sections.h"
#include "physics/report/Validity.h"
#include "physics/report/Words.h"

#include "gtm/LocationModel.h"

#include <ostream>

namespace physics {
namespace {

constexpr std::size_t valueWidth = 6;

void appendCount(std::string& text, std::string_view label, std::size_t count)
{
    appendLine(text, label, rightAligned(inWords(count), valueWidth));
}

void appendCounts(std::string& text, const Contents& contents)
{
    const Physics& physics = contents.physics;
    appendCount(text, "No. of models            = ", contents.models.size());
    appendCount(text, "No. of volumes           = ", contents.volumes.size());
    appendCount(text, "No. of boundaries        = ", contents.boundaries.size());
    appendCount(text, "No. of interfaces        = ", contents.interfaces.size());
    appendCount(text, "No. of settings          = ", contents.settings.size());
    appendCount(text, "No. of boundary patches  = ", Peek::patches(physics).size());
    appendCount(text, "No. of unused bodies     = ", physics.unusedBodies().size());
    appendCount(text, "No. of thread ids        = ", contents.threadIds.size());
    appendCount(text, "No. of zone ids          = ", contents.zoneIds.size());
    appendCount(text, "No. of activation groups = ", physics.activationGroups().size());
}

/// Here the answer with warnings ignored comes first, as the header says; in the blocks it comes second.
void appendAnswers(std::string& text, std::string_view label, const Answers& answers)
{
    appendLine(text, label,
               rightAligned(inWords(answers.ignored), valueWidth) + "  " +
                   rightAligned(inWords(answers.included), valueWidth));
}

void appendValidity(std::string& text, const Contents& contents)
{
    const Validity validity(contents.physics, contents.faulty.empty());
    text += "                 Warnings: Ignore Include\n";
    appendAnswers(text, "Is topology valid?       = ", validity.topology);
    appendAnswers(text, "Is physics valid?        = ", validity.physics);
    appendAnswers(text, "Is valid?                = ", validity.all);
}

void appendIds(std::string& text, const Contents& contents)
{
    if (!contents.settings.empty()) {
        appendList(text, "Settings:      ", idsOf(contents.settings));
        appendList(text, "Thread ids:    ", inWords(contents.threadIds));
        appendList(text, "Zone ids:      ", inWords(contents.zoneIds));
    }
    const std::vector<gtm::Body*> unusedBodies = contents.physics.unusedBodies();
    if (!unusedBodies.empty())
        appendList(text, "Unused bodies: ", regionIds(unusedBodies));
}

void appendListUnlessEmpty(std::string& text, std::string_view label, const std::vector<std::string>& items)
{
    if (!items.empty())
        appendList(text, label, items);
}

void appendMasked(std::string& text, const Physics& physics)
{
    appendTitle(text, "Masked objects:", '-');
    appendListUnlessEmpty(text, "Masked parts:     ", regionIds(physics.maskedParts()));
    appendListUnlessEmpty(text, "Masked bodies:    ", regionIds(physics.maskedBodies()));
    appendListUnlessEmpty(text, "Masked faces:     ", regionIds(physics.maskedFaces()));
    appendListUnlessEmpty(text, "Masked face-uses: ", regionIds(physics.maskedFaceUses()));
}

void appendGroups(std::string& text, const Physics& physics)
{
    appendTitle(text, "Activation groups:", '-');
    for (const int group : physics.activationGroups())
        appendList(text, "  " + inWords(group) + " - ", namesOf(physics.activationGroupVolumes(group)));
    appendGap(text);
}

bool hasMask(const Physics& physics)
{
    return !physics.maskedBodies().empty() || !physics.maskedParts().empty() || !physics.maskedFaces().empty() ||
           !physics.maskedFaceUses().empty();
}

void appendOverview(std::string& text, const Contents& contents)
{
    const Physics& physics = contents.physics;
    appendTitle(text, "Physics:", '=');
    text += '\n';
    appendCounts(text, contents);
    text += '\n';
    appendLine(text, "Enforce restrictions     = ", inWords(physics.enforceRestrictions()));
    text += '\n';
    appendValidity(text, contents);
    text += '\n';
    appendLine(text, "Contains masked bodies?  = ", inWords(hasMask(physics)));
    text += '\n';
    appendLine(text, "Default volume = ", nameOf(physics.defaultVolume()));
    text += '\n';
    appendIds(text, contents);
    appendMasked(text, physics);
    appendGroups(text, physics);
}

} // namespace

void Physics::dump(std::ostream& stream) const
{
    std::string text; // of one section at a time, because a report may be long
    const auto write = [&stream, &text](const auto append, const auto& what) {
        append(text, what);
        const std::size_t end = text.find_last_not_of('\n') + 1; // a gap looks at the end of what is before it
        stream.write(text.data(), static_cast<std::streamsize>(end));
        text.erase(0, end);
    };
    const Contents contents(*this);
    write(appendOverview, contents);
    write(appendTypes, m_typeManager);
    for (const auto append : {appendModels, appendRegions, appendAdjacency, appendOtherInformation, appendFaults,
                              appendSettings, appendSettingsByObject, appendThreads, appendMaps})
        write(append, contents);
    writeOut(stream, text);
}

} // namespace physics
