#pragma once

#include "locationmodel/Pattern.h"

#include <string>
#include <string_view>
#include <vector>

namespace gtm {
class Region;
}

namespace gtm::bundled {

class ModelTopology;

/// One term of a location, as read from a location string or made for a listed region.
struct LocationTerm {
    std::string text; ///< as written, without the leading "!" and without blanks at the ends
    bool takesAway = false;
    Pattern pattern;
    std::string problem;      ///< why the term cannot be used, as a sentence; empty when it can
    Region* region = nullptr; ///< what the term names when it was listed; the pattern is empty then
};

/// Reads a location string (docs/locations.md has the grammar). Never fails: what cannot be read is
/// marked in its term. A string of nothing but blanks has no terms.
std::vector<LocationTerm> readLocation(std::string_view text);

/// One term for each listed region. Null entries are left out; a region of another topology is marked.
std::vector<LocationTerm> listLocation(const std::vector<Region*>& regions, const ModelTopology& topology);

/// The region that a term names all by itself: the listed one, or the one whose id it is. Null for a
/// name with wildcards, a path, and an unknown name.
Region* findNamed(const LocationTerm& term, const ModelTopology& topology);

/// An id written so that it stands for itself in a location string.
std::string quotedId(std::string_view id);

/// `text` without blanks at its ends.
std::string_view trimmed(std::string_view text);

} // namespace gtm::bundled
