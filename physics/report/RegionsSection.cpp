#include "physics/report/Sections.h"

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"
#include "physics/report/ListWriter.h"
#include "physics/report/Table.h"
#include "physics/report/Words.h"

namespace physics {
namespace {

constexpr std::string_view legend = "  A = Region id\n"
                                    "  B = * indicates a default volume or boundary\n"
                                    "  C = Is active?            T/F/. (. = empty default region)\n"
                                    "  D = Is topology valid?    T/F\n"
                                    "  E = Is physics valid?     T/F\n"
                                    "  F = Is valid?             T/F\n"
                                    "  G = Has default boundary? T/F (volumes only)\n"
                                    "  H = Is internal boundary? T/F (boundaries only)\n"
                                    "  I = Activation group          (volumes only)\n"
                                    "  J = Model id\n"
                                    "  K = Id of overlapping interface\n"
                                    "  L = Settings id\n"
                                    "  M = Bundle index\n"
                                    "  * indicates explicit zones have been set\n";

Table makeTable()
{
    using enum Table::Align;
    return Table({
        {"", Right, "A"},
        {"Region", Left, "", std::string(30, '-')},
        {"B C D E F G H", Left, "", "- - - - - - -"},
        {"", Right, "I"},
        {"Physics type"},
        {"Location"},
        {"", Right, "J"},
        {"", Right, "K"},
        {"Settings", Right, "L"},
        {"", Right, "M"},
        {"Thread", Right},
        {"Thread type"},
        {"[Domain] and {zone} ids"},
    });
}

/// Columns B to H; `ofVolume` and `ofBoundary` are blanks where they have no meaning.
std::string flags(const Contents& contents, const Region& region, bool isDefault, const std::string& ofVolume,
                  const std::string& ofBoundary)
{
    const bool isTopologyValid = region.isTopologyValid(false);
    const bool isPhysicsValid = contents.faulty.count(&region) == 0;
    const std::string activity = isDefault && region.isEmpty() ? "." : flag(region.isActive());
    return std::string(isDefault ? "*" : " ") + ' ' + activity + ' ' + flag(isTopologyValid) + ' ' +
           flag(isPhysicsValid) + ' ' + flag(isTopologyValid && isPhysicsValid) + ' ' + ofVolume + ' ' + ofBoundary;
}

/// A location in lines of moderate length, broken behind commas.
std::string wrapped(const std::string& location)
{
    constexpr std::string_view comma = ", ";
    std::vector<std::string> terms;
    std::size_t start = 0;
    for (std::size_t end = location.find(comma); end != std::string::npos; end = location.find(comma, start)) {
        terms.push_back(location.substr(start, end - start));
        start = end + comma.size();
    }
    terms.push_back(location.substr(start));
    ListFormat format;
    format.brackets = Brackets::None;
    format.width = 30;
    format.endsLine = false;
    std::string lines;
    appendList(lines, "", terms, format);
    return lines;
}

using Cells = std::vector<std::string>;

Cells joined(Cells first, const Cells& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// Columns J to L.
Cells settingsCells(const Settings& settings)
{
    const bool isOfPatch = settings.boundaryPatch() != nullptr;
    const Interface* overlapping = isOfPatch ? settings.interface() : nullptr;
    return {idOf(settings.model()), overlapping == nullptr ? "" : idOf(overlapping), inWords(settings.id())};
}

/// One row for each bundle of each settings object, behind the cells of the region, which stand in the
/// first row only.
void addRows(Table& table, Cells ofRegion, const Model* model, const std::vector<const Settings*>& settings)
{
    if (settings.empty())
        table.addRow(joined(ofRegion, {idOf(model)}));
    for (const Settings* object : settings) {
        const Cells ofSettings = settingsCells(*object);
        const std::vector<ThreadBundle*> bundles = object->threadBundles();
        if (bundles.empty()) {
            table.addRow(joined(ofRegion, ofSettings));
            ofRegion.assign(ofRegion.size(), "");
        }
        for (const ThreadBundle* bundle : bundles) {
            table.addRow(joined(joined(ofRegion, ofSettings), bundleCells(*bundle)));
            ofRegion.assign(ofRegion.size(), "");
        }
    }
}

void addRows(Table& table, const Contents& contents, const Volume& volume)
{
    addRows(table,
            {inWords(volume.id()), volume.fullName(),
             flags(contents, volume, volume.isDefaultVolume(), flag(volume.hasDefaultBoundary()), " "),
             volume.isActive() ? "" : inWords(volume.activationGroup()), displayName(volume.type()),
             wrapped(placeOf(volume))},
            volume.model(), presentSettings(volume));
}

void addRows(Table& table, const Contents& contents, const Boundary& boundary)
{
    addRows(table,
            {inWords(boundary.id()), boundary.fullName(),
             flags(contents, boundary, boundary.isDefaultBoundary(), " ", flag(boundary.isInternal())), "",
             displayName(boundary.type()), wrapped(placeOf(boundary))},
            boundary.volumeModel(), presentSettings(boundary));
}

void addRows(Table& table, const Contents& contents, const Interface& interface)
{
    addRows(table,
            {inWords(interface.id()), interface.fullName(), flags(contents, interface, false, " ", " "), "",
             displayName(interface.type()) + periodicityName(interface), ""},
            interface.model(), presentSettings(interface));
}

template <class T>
void addRows(Table& table, const Contents& contents, const std::vector<T*>& regions)
{
    for (const T* region : regions)
        addRows(table, contents, *region);
    if (!regions.empty())
        table.addSeparator();
}

} // namespace

void appendRegions(std::string& text, const Contents& contents)
{
    appendTitle(text, "Topology objects:", '-');
    text += legend;
    text += '\n';
    Table table = makeTable();
    table.addSeparator();
    table.addHeader();
    table.addSeparator();
    addRows(table, contents, contents.volumes);
    addRows(table, contents, contents.boundaries);
    addRows(table, contents, contents.interfaces);
    table.appendTo(text, " ");
}

} // namespace physics
