#include "physics/Interface.h"

#include "physics/Boundary.h"
#include "physics/Model.h"
#include "physics/Peek.h"
#include "physics/Settings.h"
#include "physics/TypeNames.h"
#include "physics/report/Blocks.h"
#include "physics/report/Validity.h"
#include "physics/report/Words.h"

#include <ostream>

namespace physics {
namespace {

constexpr std::string_view rule = "+-----------------------------------------------------------------------------\n";

void appendPeriodicity(std::string& text, const Interface& interface)
{
    appendLine(text, "| Periodicity        = ", displayName(interface.periodicity()));
    if (interface.periodicity() == Periodicity::RotationallyPeriodic) {
        appendLine(text, "|   Angle            = ", inWords(interface.getPeriodicAngle()));
        appendLine(text, "|   Origin           = ", inWords(interface.getPeriodicOrigin()));
        appendLine(text, "|   Direction        = ", inWords(interface.getPeriodicDirection()));
    }
    if (interface.periodicity() == Periodicity::TranslationallyPeriodic)
        appendLine(text, "|   Offset           = ", inWords(interface.getPeriodicOffset()));
}

void appendState(std::string& text, const Interface& interface)
{
    const Validity validity(interface);
    appendLine(text, "| State              = ", displayName(interface.state()));
    appendLine(text, "| side-0             = ", nameOf(interface.boundary(Side::First)));
    appendLine(text, "| side-1             = ", nameOf(interface.boundary(Side::Second)));
    appendLine(text, "| Is active?         = ", inWords(interface.isActive()));
    appendLine(text, "| Is empty?          = ", inWords(interface.isEmpty()));
    appendLine(text, "| Is map?            = ", inWords(interface.isMapped()));
    appendLine(text, "| Is static?         = ", inWords(interface.isStatic()));
    appendLine(text, "| Is mesh valid?     = ", inWords(interface.isMeshValid()));
    appendLine(text, "| Is topology valid? = ", inWords(validity.topology));
    appendLine(text, "| Is physics valid?  = ", inWords(validity.physics));
    appendLine(text, "| Is valid?          = ", inWords(validity.all));
}

} // namespace

void appendBlock(std::string& text, const Interface& interface)
{
    const Settings* settings = Peek::settings(interface);

    text.append(rule).append("| Interface\n");
    appendLine(text, "| Name               = ", interface.fullName());
    appendLine(text, "| id                 = ", inWords(interface.id()));
    appendLine(text, "| Type               = ", displayName(interface.type()));
    appendPeriodicity(text, interface);
    appendLine(text, "| Connectivity       = ", displayName(interface.connectivity()));
    appendLine(text, "| Mesh-connectivity  = ", displayName(interface.meshConnectivity()));
    appendLine(text, "| Is sliding?        = ", inWords(interface.isSliding()));
    appendLine(text, "| Model              = ", idOf(interface.model()));
    appendLine(text, "| Settings           = ", idOf(settings));
    appendState(text, interface);
    if (settings != nullptr)
        appendBlock(text, *settings, "Interface settings");
}

void Interface::dump(std::ostream& stream, bool) const
{
    std::string text;
    appendBlock(text, *this);
    writeOut(stream, text);
}

} // namespace physics
