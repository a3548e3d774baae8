#include "physics/report/Sections.h"

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"
#include "physics/report/ListWriter.h"
#include "physics/report/Words.h"

#include "gtm/LocationModel.h"

#include <algorithm>

// What lies beside what, where it lies, and what overlaps or was not found.

namespace physics {
namespace {

bool isDefault(const Volume& volume) { return volume.isDefaultVolume(); }
bool isDefault(const Boundary& boundary) { return boundary.isDefaultBoundary(); }
bool isDefault(const Interface&) { return false; }

template <class T>
std::string marked(const T* region)
{
    return nameOf(region) + (region != nullptr && isDefault(*region) ? " [DEFAULT]" : "");
}

std::vector<std::string> neighbours(const Volume& volume)
{
    std::vector<std::string> boundaries;
    for (const Boundary* boundary : volume.boundaries())
        boundaries.push_back(marked(boundary));
    return boundaries;
}

std::vector<std::string> neighbours(const Boundary& boundary)
{
    std::vector<std::string> items = {marked(boundary.volume())};
    for (const Interface* interface : boundary.interfaces()) {
        const Boundary* other = interface->otherBoundary(&boundary);
        const Volume* beyond = other == nullptr ? nullptr : other->volume();
        items.push_back("[" + marked(interface) + ", " + marked(other) + ", " + marked(beyond) + "]");
    }
    return items;
}

std::vector<std::string> neighbours(const Interface& interface)
{
    return {marked(interface.boundary(Side::First)), marked(interface.boundary(Side::Second))};
}

/// One list for each region, all beginning in the same column.
template <class T>
void appendNeighbours(std::string& text, const std::vector<T*>& regions, const ListFormat& format)
{
    std::size_t width = 0;
    for (const T* region : regions)
        width = std::max(width, widthOf(marked(region)));
    for (const T* region : regions)
        appendList(text, "  " + leftAligned(marked(region), width) + " -> ", neighbours(*region), format);
    appendGap(text);
}

void appendInformation(std::string& text, const Volume& volume)
{
    appendLine(text, "Volume ", marked(&volume));
    appendLine(text, " Model                 - ", idOf(volume.model()));
    appendLine(text, " Location              - ", placeOf(volume));
    appendList(text, " Bodies                - ", regionIds(volume.bodies()));
    appendList(text, " Unused face-uses      - ", regionIds(volume.unusedFaceUses()));
    appendList(text, " Internal faces        - ", regionIds(volume.internalFaces()));
    appendList(text, " Unused internal faces - ", regionIds(volume.unusedInternalFaces()));
    appendList(text, " Zones                 - ", inWords(volume.zoneIds()));
}

void appendInformation(std::string& text, const Boundary& boundary)
{
    std::vector<std::string> tags;
    for (const BoundaryTag tag : boundary.tags())
        tags.push_back(displayName(tag));
    appendLine(text, "Boundary ", marked(&boundary));
    appendLine(text, " Model                 - ", idOf(boundary.volumeModel()));
    appendLine(text, " Location              - ", placeOf(boundary));
    appendList(text, " Tags                  - ", tags);
    appendList(text, " Face-uses             - ", regionIds(boundary.faceUses()));
    appendLine(text, " Pair                  - ", nameOf(boundary.pair()));
    appendList(text, " Zones                 - ", inWords(boundary.zoneIds()));
}

void appendInformation(std::string& text, const Interface& interface)
{
    appendLine(text, "Interface ", marked(&interface));
    appendLine(text, " Periodicity           - ", periodicityName(interface));
    if (interface.isPeriodic()) {
        appendLine(text, "   Offset              - ", inWords(interface.getPeriodicOffset()));
        appendLine(text, "   Angle               - ", inWords(interface.getPeriodicAngle()));
        appendLine(text, "   Origin              - ", inWords(interface.getPeriodicOrigin()));
        appendLine(text, "   Direction           - ", inWords(interface.getPeriodicDirection()));
    }
    appendLine(text, " Connectivity          - ", displayName(interface.connectivity()));
    appendLine(text, " Mesh-connectivity     - ", displayName(interface.meshConnectivity()));
    appendLine(text, " Is sliding?           - ", inWords(interface.isSliding()));
}

template <class T>
void appendInformation(std::string& text, const std::vector<T*>& regions)
{
    for (const T* region : regions) {
        appendGap(text);
        appendInformation(text, *region);
    }
}

/// Collects one list for each region that has something to list, and a heading if there is any.
class Findings {
public:
    explicit Findings(std::string_view heading) : m_heading(heading) {}

    template <class T>
    void add(const T& region, const std::vector<std::string>& items)
    {
        if (!items.empty())
            appendList(m_lines, "  " + nameOf(&region) + " - ", items);
    }

    void appendTo(std::string& text) const
    {
        if (m_lines.empty())
            return;
        appendGap(text);
        appendLine(text, m_heading, "");
        text += m_lines;
    }

private:
    std::string_view m_heading;
    std::string m_lines;
};

} // namespace

void appendAdjacency(std::string& text, const Contents& contents)
{
    appendGap(text);
    text += "Adjacency information:\n"
            "  Volume    -> Boundary ...\n"
            "  Boundary  -> Volume [Interface Paired-boundary Neighbouring-volume]\n"
            "  Interface -> Boundary-0 Boundary-1\n";
    appendGap(text);
    appendNeighbours(text, contents.volumes, {});
    appendNeighbours(text, contents.boundaries, {Brackets::None, "", 75, " "});
    appendNeighbours(text, contents.interfaces, {Brackets::None});
}

void appendOtherInformation(std::string& text, const Contents& contents)
{
    appendGap(text);
    text += "Other information:\n";
    appendInformation(text, contents.volumes);
    appendInformation(text, contents.boundaries);
    appendInformation(text, contents.interfaces);
}

void appendFaults(std::string& text, const Contents& contents)
{
    Findings volumes("Overlapping volumes:");
    Findings boundaries("Overlapping boundaries:");
    Findings names("Unresolvable names:");
    for (const Volume* volume : contents.volumes) {
        volumes.add(*volume, namesOf(volume->overlappingVolumes()));
        names.add(*volume, volume->unresolvableNames());
    }
    for (const Boundary* boundary : contents.boundaries) {
        boundaries.add(*boundary, namesOf(boundary->overlappingBoundaries()));
        names.add(*boundary, boundary->unresolvableNames());
    }
    volumes.appendTo(text);
    boundaries.appendTo(text);
    names.appendTo(text);
}

} // namespace physics
