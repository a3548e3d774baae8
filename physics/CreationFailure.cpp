#include "physics/CreationFailure.h"

#include "physics/report/ListWriter.h"

#include "gtm/Region.h"

#include <iostream>

namespace physics {
namespace {

void reportState(const std::string& state) { std::cout << "       State = " << state << std::endl; }

std::string opening(std::string_view kind, const std::string& name)
{
    return "Error: Could not create " + std::string(kind) + " \"" + name;
}

} // namespace

void reportCreationFailure(std::string_view kind, const std::string& name, const std::string& location,
                           const std::string& state)
{
    std::cout << opening(kind, name) << "\" at location: \"" << location << "\"" << std::endl;
    reportState(state);
}

void reportCreationFailure(std::string_view kind, const std::string& name, const std::vector<gtm::Region*>& regions,
                           const std::string& state)
{
    std::vector<std::string> ids;
    for (const gtm::Region* region : regions)
        if (region != nullptr)
            ids.push_back(region->id());
    std::string text;
    ListFormat format;
    format.endsLine = false;
    appendList(text, opening(kind, name) + "\" at location: ", ids, format);
    std::cout << text << std::endl;
    reportState(state);
}

void reportInterfaceFailure(const std::string& name, const std::string& firstBoundary,
                            const std::string& secondBoundary, const std::string& state)
{
    // No line end before the state on purpose: the whole refusal of an interface is one record for those
    // who search logs.
    std::cout << opening("interface", name) << "\" between\n       \"" << firstBoundary << "\" and \"" << secondBoundary
              << "\".";
    reportState(state);
}

void reportNonSharedMeshes(const std::string& volume)
{
    // No closing quote on purpose: the message has always ended with the bare name.
    std::cout << "Error: Non-shared meshes on internal faces in volume \"" << volume << std::endl;
}

} // namespace physics
