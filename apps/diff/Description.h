#pragma once

#include <string>
#include <vector>

namespace physics::apps {

struct BuiltCase;

/// What makes an object of one set-up and an object of another one the same.
enum class Matching {
    Ids,   ///< kind and id: for states of one set-up that were saved at different times
    Names, ///< kind and full name
};

/// Something that can be said about an object.
struct Fact {
    std::string aspect;   ///< such as "type"
    std::string identity; ///< equal in two set-ups exactly when they agree; names what it refers to by key
    std::string text;     ///< for people
};

/// An object of a set-up with all that is to be compared.
struct Description {
    std::string kind;        ///< such as "boundary"
    std::string key;         ///< equal for what is the same object of two set-ups
    std::string name;        ///< a number for what has no name, empty for the set-up itself
    std::string of;          ///< for people: what a domain or a solver thread belongs to; else empty
    std::string label;       ///< for people: all of this, such as `domain 1 of model "flow"`
    std::vector<Fact> facts; ///< the same aspects in the same order for all objects of a kind
};

/// How two set-ups are described so that their descriptions can be compared.
struct DescriptionRules {
    Matching matching = Matching::Names;
    bool hasModelNames = false;     ///< models go by their names, else by their places in the order of ids
    bool hasPeriodicValues = false; ///< whether the values of periodicity are known
};

/// Everything that a set-up lists, kind by kind: the set-up itself, models, domains, volumes, boundaries,
/// interfaces, groups of deactivated volumes, solver threads; each in the order of the set-up's lists. Left out
/// are settings without threads, which are made when somebody looks for them, and what the location model derives.
std::vector<Description> describe(const BuiltCase& built, const DescriptionRules& rules);

/// As the other kinds go by names, models can only when all have one.
bool allModelsHaveNames(const BuiltCase& built);

} // namespace physics::apps
