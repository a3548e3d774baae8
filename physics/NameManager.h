#pragma once

#include "physics/Export.h"

#include <string>

namespace physics {

/// Turns names that people give into the form needed where the name will be used. All tests are on
/// single bytes and ASCII only; nothing here depends on the locale or fails.
class PHYSICS_EXPORT NameManager {
public:
    /// The name as it stands.
    static std::string normalisePartName(const std::string& name);

    /// The name as it stands.
    static std::string normaliseRegionName(const std::string& name);

    /// A name for a physics object: blanks trimmed from both ends, "A" put in front unless it begins
    /// with a letter, every byte but letters, digits, " ", "." and "_" replaced by "_" (a character of
    /// several bytes becomes as many "_"). "A" for an empty name.
    static std::string normalisePhysicsName(const std::string& name);

    /// A symbol of the solver's Scheme language for a thread or domain: lower case, " " replaced by
    /// "-", each non-ASCII character and each other byte that a symbol cannot hold by one "_", and "!"
    /// put in front unless it begins as a symbol may. Nothing is trimmed. "!" for an empty name.
    static std::string normaliseThreadName(const std::string& name);
};

} // namespace physics
