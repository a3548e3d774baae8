#include "physics/report/Sections.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Peek.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"
#include "physics/report/Blocks.h"
#include "physics/report/Words.h"

namespace physics {
namespace {

void appendIfPresent(std::vector<const Settings*>& result, const Settings* settings)
{
    if (settings != nullptr)
        result.push_back(settings);
}

} // namespace

Contents::Contents(const Physics& setUp)
    : physics(setUp),
      models(setUp.models()),
      volumes(setUp.volumes()),
      boundaries(setUp.boundaries()),
      interfaces(setUp.interfaces()),
      settings(setUp.settings()),
      threadIds(setUp.threadIds()),
      zoneIds(Peek::zoneIds(setUp))
{
    for (const Physics::Complaint& complaint : setUp.complaints(false))
        faulty.insert(complaint.region);
}

void appendGap(std::string& text)
{
    const bool hasGap = text.size() >= 2 && text.compare(text.size() - 2, 2, "\n\n") == 0;
    if (!hasGap)
        text += '\n';
}

void appendTitle(std::string& text, std::string_view title, char underline)
{
    appendGap(text);
    text.append(title).append("\n").append(title.size(), underline).append("\n");
}

std::string periodicityName(const Interface& interface)
{
    switch (interface.periodicity()) {
    case Periodicity::NonPeriodic:
        return " [non-periodic]";
    case Periodicity::TranslationallyPeriodic:
        return " [translational]";
    case Periodicity::RotationallyPeriodic:
        return " [rotational]";
    }
    return {};
}

std::string placeOf(const Volume& volume)
{
    return volume.isDefaultVolume() ? "DEFAULT" : locationText(volume.location());
}

std::string placeOf(const Boundary& boundary)
{
    return boundary.isDefaultBoundary() ? "DEFAULT" : locationText(boundary.location());
}

std::vector<std::string> bundleCells(const ThreadBundle& bundle)
{
    std::string domainsAndZones;
    appendDomainsAndZones(domainsAndZones, bundle, "", 0);
    return {inWords(bundle.index()), inWords(bundle.threadId()), displayName(bundle.threadType()), domainsAndZones};
}

std::vector<const Settings*> presentSettings(const Volume& volume)
{
    std::vector<const Settings*> result;
    appendIfPresent(result, Peek::settings(volume));
    appendIfPresent(result, Peek::internalSettings(volume));
    return result;
}

std::vector<const Settings*> presentSettings(const Boundary& boundary)
{
    std::vector<const Settings*> result;
    for (const BoundaryPatch* patch : boundary.patches())
        for (const SettingsType kind :
             {SettingsType::VolumeSettings, SettingsType::ShellSettings, SettingsType::InterfaceSettings})
            appendIfPresent(result, Peek::settings(*patch, kind));
    return result;
}

std::vector<const Settings*> presentSettings(const Interface& interface)
{
    std::vector<const Settings*> result;
    appendIfPresent(result, Peek::settings(interface));
    return result;
}

} // namespace physics
