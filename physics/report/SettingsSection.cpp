#include "physics/report/Sections.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Peek.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"
#include "physics/report/ListWriter.h"
#include "physics/report/Table.h"
#include "physics/report/Words.h"

namespace physics {
namespace {

/// The kind of object that the settings belong to, and its name.
std::string objectOf(const Settings& settings)
{
    switch (settings.topologyType()) {
    case TopologyType::Volume:
        return "Volume    " + nameOf(settings.volume());
    case TopologyType::Internal:
        return "Internal  " + nameOf(settings.volume());
    case TopologyType::Interface:
        return "Interface " + nameOf(settings.interface());
    case TopologyType::Boundary:
        break;
    }
    const std::string name = "Boundary  " + nameOf(settings.boundary());
    if (settings.boundary() == nullptr || settings.boundary()->noOfInterfaces() == 0)
        return name;
    return name + "  Interface " + (settings.interface() == nullptr ? "NON-OVERLAP" : nameOf(settings.interface()));
}

void addRows(Table& table, const Settings& settings)
{
    std::vector<std::string> row = {inWords(settings.id()), objectOf(settings), idOf(settings.model()),
                                    displayName(settings.type())};
    const std::size_t noOfCells = row.size();
    const std::vector<ThreadBundle*> bundles = settings.threadBundles();
    if (bundles.empty())
        table.addRow(row);
    for (const ThreadBundle* bundle : bundles) {
        for (std::string& cell : bundleCells(*bundle))
            row.push_back(std::move(cell));
        table.addRow(row);
        row.assign(noOfCells, "");
    }
}

void appendSettingsTable(std::string& text, const Contents& contents)
{
    using enum Table::Align;
    Table table({
        {"Settings", Right, "", std::string(9, '-')},
        {"Topology", Left, "", std::string(30, '-')},
        {"Model", Right},
        {"Type"},
        {"I", Right},
        {"Thread", Right},
        {"Thread type"},
        {"[Domain] and {zone} ids"},
    });
    table.addSeparator();
    table.addHeader();
    table.addSeparator();
    for (const Settings* settings : contents.settings)
        addRows(table, *settings);
    if (!contents.settings.empty())
        table.addSeparator();
    table.appendTo(text, " ");
}

void appendBoundarySettingsOfVolumes(std::string& text, const Contents& contents)
{
    Table table({{"Physics volume", Table::Align::Left, "", std::string(30, '-')}, {"Boundary settings"}});
    table.addHeader();
    table.addSeparator();
    ListFormat format;
    format.endsLine = false;
    for (const Volume* volume : contents.volumes) {
        std::vector<const Settings*> settings;
        for (const Boundary* boundary : volume->boundaries())
            for (const Settings* ofBoundary : presentSettings(*boundary))
                settings.push_back(ofBoundary);
        std::string ids;
        appendList(ids, "", idsOf(settings), format);
        table.addRow({volume->fullName(), ids});
    }
    table.appendTo(text, " ");
}

/// An entry such as "V 7", or nothing when there are no such settings.
std::string entryOf(const char* prefix, const Settings* settings)
{
    return settings == nullptr ? std::string() : prefix + inWords(settings->id());
}

/// The entries of the three kinds, as far as there are any.
std::string entriesOf(const BoundaryPatch& patch)
{
    std::string entries = entryOf("V ", Peek::settings(patch, SettingsType::VolumeSettings));
    for (const std::string& more : {entryOf("S ", Peek::settings(patch, SettingsType::ShellSettings)),
                                    entryOf("I ", Peek::settings(patch, SettingsType::InterfaceSettings))})
        entries += (entries.empty() || more.empty() ? "" : ", ") + more;
    return entries;
}

void appendVolumes(std::string& text, const Contents& contents)
{
    appendTitle(text, "Volume settings:", '~');
    text += "  V = Volume settings\n\n";
    Table table({{"Volume"}, {"Model", Table::Align::Right}, {"Settings"}});
    table.addHeader();
    for (const Volume* volume : contents.volumes)
        table.addRow({volume->fullName(), idOf(volume->model()), entryOf("V ", Peek::settings(*volume))});
    table.appendTo(text, " ");
}

void appendPatches(std::string& text, const Contents& contents)
{
    appendTitle(text, "Boundary settings:", '~');
    text += "  V = Boundary  settings\n"
            "  S = Shell     settings\n"
            "  I = Interface settings\n\n";
    using enum Table::Align;
    Table table({{"Volume"}, {"Boundary"}, {"Interface"}, {"Patch", Right}, {"Pair", Right}, {"Settings"}});
    table.addHeader();
    for (const Boundary* boundary : contents.boundaries)
        for (const BoundaryPatch* patch : boundary->patches()) {
            const BoundaryPatch* pair = patch->pairedPatch();
            table.addRow({nameOf(patch->volume()), boundary->name(),
                          patch->interface() == nullptr ? "NON-OVERLAP" : nameOf(patch->interface()),
                          inWords(patch->id()), pair == nullptr ? "" : inWords(pair->id()), entriesOf(*patch)});
        }
    table.appendTo(text, " ");
}

void appendInterfaces(std::string& text, const Contents& contents)
{
    appendTitle(text, "Interface settings:", '~');
    text += "  I = Interface settings\n\n";
    Table table({{"Interface"}, {"Settings"}});
    table.addHeader();
    for (const Interface* interface : contents.interfaces)
        table.addRow({interface->fullName(), entryOf("I ", Peek::settings(*interface))});
    table.appendTo(text, " ");
}

} // namespace

void appendSettings(std::string& text, const Contents& contents)
{
    appendGap(text);
    text += "Associated physics objects\n";
    appendTitle(text, "Settings:", '-');
    text += "I = Thread bundle index\n\n";
    appendSettingsTable(text, contents);
    text += '\n';
    appendBoundarySettingsOfVolumes(text, contents);
}

void appendSettingsByObject(std::string& text, const Contents& contents)
{
    appendVolumes(text, contents);
    appendPatches(text, contents);
    appendInterfaces(text, contents);
}

} // namespace physics
