#pragma once

#include "apps/Problem.h"

#include <map>
#include <string>
#include <vector>

namespace physics::apps {

/// The names that a case file gives to the things of one kind, and what is wrong with using them.
class DefinedNames {
public:
    /// `kind` as in "expected the name of a model".
    DefinedNames(std::string kind, std::vector<Problem>& problems);

    /// A name given to the object at a path. Complains when it is given already.
    void define(const std::string& name, const std::string& path);

    /// A name used at a path. Complains when it is not defined, unless a definition could not be read: then
    /// it might be that one.
    void refer(const std::string& name, const std::string& path);

private:
    std::string m_kind;
    std::vector<Problem>& m_problems;
    std::map<std::string, std::string> m_pathByName;
    bool m_isComplete = true;
};

} // namespace physics::apps
