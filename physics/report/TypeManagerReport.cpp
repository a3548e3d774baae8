#include "physics/TypeManager.h"

#include "physics/TypeNames.h"
#include "physics/report/ListWriter.h"
#include "physics/report/Sections.h"
#include "physics/report/Words.h"

#include <ostream>
#include <string>
#include <vector>

namespace physics {
namespace {

constexpr std::size_t labelWidth = 25;

template <class E>
std::vector<std::string> displayNames(const std::vector<E>& types)
{
    std::vector<std::string> names;
    names.reserve(types.size());
    for (const E type : types)
        names.push_back(displayName(type));
    return names;
}

template <class E>
std::string label(E type)
{
    return leftAligned(displayName(type) + ":", labelWidth);
}

std::vector<std::string> boundaryTypesWithStar(TypeManager& types, VolumeType volumeType)
{
    std::vector<std::string> names;
    for (const BoundaryType type : types.allowedBoundaryTypes(volumeType))
        names.push_back(displayName(type) + (type == types.defaultBoundaryType(volumeType) ? "*" : ""));
    return names;
}

} // namespace

/// Takes a copy, as the lists are not `const` members.
void appendTypes(std::string& text, TypeManager types)
{
    appendList(text, "Allowed volume types:    ", displayNames(types.allowedVolumeTypes()));
    appendList(text, "Allowed boundary types:  ", displayNames(types.allowedBoundaryTypes()));
    appendList(text, "Allowed interface types: ", displayNames(types.allowedInterfaceTypes()));
    appendList(text, "Allowed shell types:     ", displayNames(types.allowedShellTypes()));
    appendList(text, "Allowed thread types:    ", displayNames(types.allowedThreadTypes()));

    text += "Allowed boundaries: (* indicates default volume boundary type)\n\n";
    for (const VolumeType volumeType : types.allowedVolumeTypes())
        appendList(text, label(volumeType), boundaryTypesWithStar(types, volumeType));

    text += '\n';
    const std::string indent(labelWidth, ' ');
    for (const InterfaceType interfaceType : types.allowedInterfaceTypes()) {
        text += label(interfaceType) + '\n';
        for (const VolumeType volumeType : types.allowedVolumeTypes()) {
            const std::vector<BoundaryType> allowed = types.allowedBoundaryTypes(interfaceType, volumeType);
            if (!allowed.empty())
                appendList(text, indent + displayName(volumeType) + ":", displayNames(allowed));
        }
    }

    text += '\n';
    for (const ShellType shellType : types.allowedShellTypes())
        appendList(text, label(shellType), displayNames(types.allowedBoundaryTypes(shellType)));
}

void TypeManager::dump(std::ostream& stream) const
{
    std::string text;
    appendTypes(text, *this);
    writeOut(stream, text);
}

} // namespace physics
