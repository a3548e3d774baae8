#pragma once

#include "importers/cgns/CgnsDescription.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace gtm::bundled {

/// The cell faces on the surface of a zone, numbered from 0.
class ZoneSurface {
public:
    /// What a selection stands for. `isKnown` is false where it cannot be told.
    struct CellFaces {
        std::vector<std::size_t> surface; ///< in the order of the selection; each once
        std::size_t inner = 0;            ///< cell faces between two cells of the zone
        bool isKnown = true;
    };

    virtual ~ZoneSurface() = default;
    ZoneSurface(const ZoneSurface&) = delete;
    ZoneSurface& operator=(const ZoneSurface&) = delete;

    virtual std::size_t size() const = 0;

    /// Costs in proportion to the selection. Throws `CgnsError`, which begins with `place`, when the
    /// selection reaches outside the zone.
    virtual CellFaces cellFaces(const CgnsDescription::Selection& selection, const std::string& place) const = 0;

protected:
    ZoneSurface() = default;
};

/// Throws `CgnsError` when the zone contradicts itself. Null for a zone whose surface cannot be worked out; then
/// `obstacle` says why, in words that go on after the name of the zone. The zone must outlive the surface.
std::unique_ptr<ZoneSurface> makeSurface(const CgnsDescription::Zone& zone, std::string& obstacle);

} // namespace gtm::bundled
