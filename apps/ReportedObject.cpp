#include "apps/ReportedObject.h"

#include "apps/InputError.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/Volume.h"
#include "support/InQuotes.h"
#include "support/NearestName.h"

#include <cstddef>
#include <ostream>
#include <vector>

namespace physics::apps {
namespace {

using gtm::support::hintForName;
using gtm::support::inQuotes;

std::string nameOf(const Region* region) { return region->fullName(); }
std::string nameOf(const Model* model) { return std::to_string(model->id()); }
std::string nameOf(const Settings* settings) { return std::to_string(settings->id()); }

/// The object that has the name. `what` is the whole argument, for the complaint.
template <class T>
const T& find(const std::vector<T*>& objects, const std::string& name, const std::string& what)
{
    std::vector<std::string> names;
    for (const T* object : objects) {
        names.push_back(nameOf(object));
        if (names.back() == name) {
            return *object;
        }
    }
    throw InputError("physics-case: --object: there is no object " + inQuotes(what) + hintForName(name, names));
}

} // namespace

void dumpObject(const std::string& object, const Physics& physics, std::ostream& stream)
{
    const std::size_t colon = object.find(':');
    const std::string kind = object.substr(0, colon);
    const std::string name = colon == std::string::npos ? "" : object.substr(colon + 1);
    constexpr bool closes = true;
    if (kind == "volume") {
        find(physics.volumes(), name, object).dump(stream, closes);
    } else if (kind == "boundary") {
        find(physics.boundaries(), name, object).dump(stream, closes);
    } else if (kind == "interface") {
        find(physics.interfaces(), name, object).dump(stream, closes);
    } else if (kind == "model") {
        find(physics.models(), name, object).dump(stream);
    } else if (kind == "settings") {
        find(physics.settings(), name, object).dump(stream, closes, "");
    } else {
        throw InputError("physics-case: --object: there is no kind of object " + inQuotes(kind) +
                         hintForName(kind, {"volume", "boundary", "interface", "model", "settings"}));
    }
}

} // namespace physics::apps
