#include "physics/Settings.h"

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/ThreadBundle.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"
#include "physics/report/Blocks.h"
#include "physics/report/Words.h"

#include <ostream>

namespace physics {
namespace {

constexpr std::string_view rule = "|   . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . . \n";

} // namespace

void appendBlock(std::string& text, const Settings& settings, std::string_view heading)
{
    text.append(rule).append("|   ").append(heading.empty() ? "Settings" : heading).append("\n").append(rule);
    appendLine(text, "|   id            = ", inWords(settings.id()));
    appendLine(text, "|   Name          = ", settings.name());
    appendLine(text, "|   Model         = ", idOf(settings.model()));
    appendLine(text, "|   Topology Type = ", displayName(settings.topologyType()));
    appendLine(text, "|   Is active?    = ", inWords(settings.isActive()));
    appendLine(text, "|   Threads       = ", "");
    for (const ThreadBundle* bundle : settings.threadBundles())
        appendBundle(text, *bundle, "|     ");
    appendLine(text, "|   Volume        = ", nameOf(settings.volume()));
    appendLine(text, "|   Boundary      = ", nameOf(settings.boundary()));
    appendLine(text, "|   Interface     = ", nameOf(settings.interface()));
}

void Settings::dump(std::ostream& stream, bool, const std::string& heading) const
{
    std::string text;
    appendBlock(text, *this, heading);
    writeOut(stream, text);
}

} // namespace physics
