#include "apps/proposal/TypeMapping.h"

#include <algorithm>
#include <string>

namespace physics::apps {
namespace {

bool isSmall(char c) { return c >= 'a' && c <= 'z'; }
bool isCapital(char c) { return c >= 'A' && c <= 'Z'; }

/// The words of a name in small letters, with a blank before and behind each.
std::string wordsOf(std::string_view name)
{
    std::string words = " ";
    char previous = ' ';
    for (const char c : name) {
        const bool isLetter = isSmall(c) || isCapital(c);
        const bool beginsWord = !isLetter || (isCapital(c) && isSmall(previous));
        if (beginsWord && words.back() != ' ') {
            words += ' ';
        }
        if (isLetter) {
            words += isCapital(c) ? static_cast<char>(c - 'A' + 'a') : c;
        }
        previous = c;
    }
    return words.back() == ' ' ? words : words + ' ';
}

template <class Type>
const TypeMapping<Type>* findInName(const std::vector<TypeMapping<Type>>& rows, std::string_view name)
{
    const std::string words = wordsOf(name);
    const auto row = std::find_if(rows.begin(), rows.end(), [&words](const TypeMapping<Type>& candidate) {
        return words.find(" " + std::string(candidate.said) + " ") != std::string::npos;
    });
    return row == rows.end() ? nullptr : &*row;
}

} // namespace

std::string_view inWords(Fidelity fidelity)
{
    switch (fidelity) {
    case Fidelity::Exact:
        return "exact";
    case Fidelity::Approximate:
        return "approximate";
    case Fidelity::NotPossible:
        break;
    }
    return "not possible";
}

const std::vector<BoundaryMapping>& conditionTypes()
{
    using B = BoundaryType;
    using F = Fidelity;
    static const std::vector<BoundaryMapping> rows = {
        {"BCAxisymmetricWedge", B::Symmetry, F::Approximate, "that the two sides of the wedge map onto each other"},
        {"BCDegenerateLine", B::Axis, F::Approximate, "that the line need not be an axis of the flow"},
        {"BCDegeneratePoint", B::Unset, F::NotPossible, "that the face has shrunk to a point"},
        {"BCDirichlet", B::Unset, F::NotPossible, "that all values are given"},
        {"BCExtrapolate", B::Outflow, F::Approximate, "that everything is extrapolated, pressure too"},
        {"BCFarfield", B::PressureFarField, F::Exact, ""},
        {"BCGeneral", B::Unset, F::NotPossible, "the condition, which the file says in equations of its own"},
        {"BCInflow", B::VelocityInlet, F::Approximate, "that the flow may be faster than sound"},
        {"BCInflowSubsonic", B::PressureInlet, F::Approximate, "that the flow is slower than sound"},
        {"BCInflowSupersonic", B::PressureInlet, F::Approximate, "that the flow is faster than sound"},
        {"BCNeumann", B::Unset, F::NotPossible, "that all gradients are given"},
        {"BCOutflow", B::PressureOutlet, F::Approximate, "that the flow may be faster than sound"},
        {"BCOutflowSubsonic", B::PressureOutlet, F::Approximate, "that the flow is slower than sound"},
        {"BCOutflowSupersonic", B::PressureOutlet, F::Approximate, "that the pressure outside has no effect"},
        {"BCSymmetryPlane", B::Symmetry, F::Exact, ""},
        {"BCSymmetryPolar", B::Axis, F::Exact, ""},
        {"BCTunnelInflow", B::PressureInlet, F::Approximate, "that it is the inlet of a wind tunnel"},
        {"BCTunnelOutflow", B::PressureOutlet, F::Approximate, "that it is the outlet of a wind tunnel"},
        {"BCWall", B::Wall, F::Exact, ""},
        {"BCWallInviscid", B::Wall, F::Approximate, "that the fluid slips along the wall"},
        {"BCWallViscous", B::Wall, F::Exact, ""},
        {"BCWallViscousHeatFlux", B::Wall, F::Approximate, "that the heat flux is given"},
        {"BCWallViscousIsothermal", B::Wall, F::Approximate, "that the temperature is given"},
        {"FamilySpecified", B::Unset, F::NotPossible, "the condition, which the family does not tell"},
        {"Null", B::Unset, F::NotPossible, "the condition, which the file does not tell"},
        {"UserDefined", B::Unset, F::NotPossible, "the condition, which only the program that wrote the file knows"},
    };
    return rows;
}

const std::vector<BoundaryMapping>& boundaryWords()
{
    using B = BoundaryType;
    using F = Fidelity;
    static const std::vector<BoundaryMapping> rows = {
        {"velocity inlet", B::VelocityInlet, F::Exact, ""},
        {"mass flow inlet", B::MassFlowInlet, F::Exact, ""},
        {"mass flow outlet", B::MassFlowOutlet, F::Exact, ""},
        {"pressure inlet", B::PressureInlet, F::Exact, ""},
        {"pressure outlet", B::PressureOutlet, F::Exact, ""},
        {"pressure far field", B::PressureFarField, F::Exact, ""},
        {"far field", B::PressureFarField, F::Approximate, "what is given there"},
        {"farfield", B::PressureFarField, F::Approximate, "what is given there"},
        {"exhaust fan", B::ExhaustFan, F::Exact, ""},
        {"intake fan", B::IntakeFan, F::Exact, ""},
        {"inlet vent", B::InletVent, F::Exact, ""},
        {"outlet vent", B::OutletVent, F::Exact, ""},
        {"porous jump", B::PorousJump, F::Exact, ""},
        {"radiator", B::Radiator, F::Exact, ""},
        {"fan", B::Fan, F::Exact, ""},
        {"inlet", B::VelocityInlet, F::Approximate, "what is given there"},
        {"inflow", B::VelocityInlet, F::Approximate, "what is given there"},
        {"outlet", B::PressureOutlet, F::Approximate, "what is given there"},
        {"outflow", B::Outflow, F::Exact, ""},
        {"symmetry", B::Symmetry, F::Exact, ""},
        {"symm", B::Symmetry, F::Exact, ""},
        {"sym", B::Symmetry, F::Exact, ""},
        {"axis", B::Axis, F::Exact, ""},
        {"wall", B::Wall, F::Exact, ""},
        {"walls", B::Wall, F::Exact, ""},
        {"interior", B::Interior, F::Exact, ""},
    };
    return rows;
}

const std::vector<VolumeMapping>& volumeWords()
{
    using V = VolumeType;
    using F = Fidelity;
    static const std::vector<VolumeMapping> rows = {
        {"porous", V::Porous, F::Exact, ""},
        {"solid", V::Solid, F::Exact, ""},
        {"fluid", V::Fluid, F::Exact, ""},
        {"steel", V::Solid, F::Approximate, "the material"},
        {"copper", V::Solid, F::Approximate, "the material"},
        {"aluminium", V::Solid, F::Approximate, "the material"},
        {"aluminum", V::Solid, F::Approximate, "the material"},
        {"air", V::Fluid, F::Approximate, "the material"},
        {"water", V::Fluid, F::Approximate, "the material"},
        {"gas", V::Fluid, F::Approximate, "the material"},
        {"coolant", V::Fluid, F::Approximate, "the material"},
    };
    return rows;
}

const BoundaryMapping& mappingOfCondition(std::string_view type)
{
    const std::vector<BoundaryMapping>& rows = conditionTypes();
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [type](const BoundaryMapping& candidate) { return candidate.said == type; });
    return row == rows.end() ? rows.back() : *row;
}

const BoundaryMapping* boundaryMappingOfName(std::string_view name) { return findInName(boundaryWords(), name); }
const VolumeMapping* volumeMappingOfName(std::string_view name) { return findInName(volumeWords(), name); }

} // namespace physics::apps
