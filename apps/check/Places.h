#pragma once

#include "apps/check/Finding.h"
#include "support/JsonSource.h"

#include <optional>
#include <string>
#include <unordered_map>

namespace physics::apps {

struct CaseFile;

/// Where the subjects of findings stand in a case file. Made without one, it knows no place.
class Places {
public:
    struct Place {
        std::string pointer; ///< a JSON pointer
        std::size_t line = 0;
        std::size_t column = 0;
    };

    Places() = default;

    /// One walk through the text.
    Places(const CaseFile& file, const gtm::support::JsonSource& source);

    /// Nothing for what the file does not name. A body stands where the geometry does.
    std::optional<Place> find(const Finding::Subject& subject) const;

private:
    std::string m_geometry;
    std::unordered_map<std::string, std::string> m_pointers; ///< by type and name
    std::unordered_map<std::string, gtm::support::JsonPosition> m_positions;
};

} // namespace physics::apps
