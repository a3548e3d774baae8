#include "physics/report/Sections.h"

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"
#include "physics/report/ListWriter.h"
#include "physics/report/Table.h"
#include "physics/report/Words.h"

namespace physics {
namespace {

/// The kind of object that a thread realises.
std::string kindOf(const Settings& settings)
{
    switch (settings.topologyType()) {
    case TopologyType::Volume:
        return "volume";
    case TopologyType::Internal:
        return "interior";
    case TopologyType::Interface:
        return "interface";
    case TopologyType::Boundary:
        break;
    }
    switch (settings.type()) {
    case SettingsType::ShellSettings:
        return "shell";
    case SettingsType::InterfaceSettings:
        return "interface";
    default:
        return "boundary";
    }
}

std::string domainList(const ThreadBundle& bundle)
{
    ListFormat format;
    format.brackets = Brackets::Square;
    format.endsLine = false;
    std::string list;
    appendList(list, "", inWords(bundle.domainIds()), format);
    return list;
}

std::vector<std::string> cellsOf(int threadId, const Settings* settings)
{
    if (settings == nullptr)
        return {inWords(threadId), std::string(none)};
    const ThreadBundle* bundle = settings->threadBundleWithThreadId(threadId);
    const Volume* volume = settings->volume();
    const Boundary* boundary = settings->boundary();
    const Interface* interface = settings->interface();
    return {
        inWords(threadId),
        inWords(settings->id()),
        bundle == nullptr ? std::string(none) : inWords(bundle->index()),
        kindOf(*settings),
        volume == nullptr ? "" : volume->fullName(),
        boundary == nullptr ? "" : boundary->name(),
        interface == nullptr ? "" : interface->fullName(),
        volume == nullptr ? "" : displayName(volume->type()),
        bundle == nullptr ? std::string(none) : domainList(*bundle),
    };
}

void appendThreadMap(std::string& text, const Contents& contents)
{
    using enum Table::Align;
    appendTitle(text, "Thread to settings map:", '~');
    text += '\n';
    Table table({{"Thread", Right}, {"Settings", Right}});
    table.addHeader();
    for (const int threadId : contents.threadIds)
        if (const Settings* settings = contents.physics.findSettingsByThreadId(threadId))
            table.addRow({inWords(threadId), inWords(settings->id())});
    table.appendTo(text, "", 1);
    text += '\n';
}

void appendZoneMap(std::string& text, const Contents& contents)
{
    using enum Table::Align;
    appendTitle(text, "Zone to thread / settings map:", '~');
    text += '\n';
    Table table({{"Zone", Right}, {"Thread", Right}, {"Settings", Right}});
    table.addHeader();
    for (const int zoneId : contents.zoneIds)
        if (const ThreadBundle* bundle = contents.physics.findThreadBundleByZoneId(zoneId))
            table.addRow({inWords(zoneId), inWords(bundle->threadId()), idOf(bundle->settings())});
    table.appendTo(text, "", 1);
}

} // namespace

void appendThreads(std::string& text, const Contents& contents)
{
    using enum Table::Align;
    appendTitle(text, "Threads:", '-');
    text += "S = Settings\n"
            "I = Thread bundle index\n\n";
    Table table({{"Thread", Right},
                 {"S", Right},
                 {"I", Right},
                 {"Type"},
                 {"Volume"},
                 {"Boundary"},
                 {"Interface"},
                 {"Physics type"},
                 {"Domains"}});
    table.addHeader();
    for (const int threadId : contents.threadIds)
        table.addRow(cellsOf(threadId, contents.physics.findSettingsByThreadId(threadId)));
    table.appendTo(text, " ");
}

void appendMaps(std::string& text, const Contents& contents)
{
    if (!contents.threadIds.empty())
        appendThreadMap(text, contents);
    if (!contents.zoneIds.empty())
        appendZoneMap(text, contents);
}

} // namespace physics
