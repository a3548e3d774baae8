#pragma once

#include "gtm/Export.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace gtm::bundled {

/// Why no topology can be made of a geometry file: a whole sentence that names the file and the place
/// in it, and says what to do.
class GTM_EXPORT CadError : public TopologyError {
public:
    using TopologyError::TopologyError;
};

/// How a geometry file is read.
struct CadOptions {
    /// Whether faces are divided and made common where bodies touch. Unset: yes for STEP, in which
    /// every body has faces of its own, and no for BREP, which keeps shared faces.
    std::optional<bool> imprint;

    /// How far the triangles of `CadResult::triangles` may be from the faces, in the length unit of the model;
    /// above zero. Unset: there are none, which saves time and memory.
    std::optional<double> triangleTolerance = {};
};

/// A face in triangles, for pictures.
struct CadTriangles {
    std::string face;                          ///< its id
    std::vector<std::array<double, 3>> points; ///< in the length unit of the model

    /// Places in `points`. Seen against the normal, which points out of the first side, they run
    /// counter-clockwise.
    std::vector<std::array<std::size_t, 3>> triangles;
};

/// What was read.
struct CadResult {
    /// Never null. Bodies, parts and faces are in the order of the file.
    std::unique_ptr<LocationModel> model;

    /// What the file has and the model has not, and every name that could not be kept; one sentence
    /// each, in the same order on every run.
    std::vector<std::string> notes;

    /// The id of each part, body and face that is not called as in the file, with its name there; that of a face
    /// follows the id of its body: "BODY/NAME".
    std::map<std::string, std::string> renamed = {};

    /// One for each face, in their order, when they were asked for; a face that cannot be divided has none.
    std::vector<CadTriangles> triangles = {};
};

/// Reads a STEP or BREP file, told apart by content, not by name. Throws `CadError`.
///
/// Each solid becomes a body, called as its product or, if that has no name, as the solid itself, else
/// "body-N" for the N-th solid of the file. A product with several solids, and an assembly with solids
/// directly below it, becomes a part, called as the assemblies around it and itself: "engine/stage". A face becomes a
/// face called "BODY/NAME" after the first body that has a name for it, else "BODY/face-N" for the N-th face of the
/// first body.
///
/// Volumes, areas and centroids are told too, in millimetres for STEP, whatever the unit of the file, and in the
/// unit of the file for BREP, which names none; products, solids and faces keep their colours.
///
/// The first side of a face that two bodies share is that of the body out of which its normal points.
///
/// One rule maps names to ids: blanks at the ends go, a comma or a control character becomes "_", and
/// what is then empty or "NONE" counts as no name; an id that is taken gets "-2", "-3" and so on. Ids
/// are given to all bodies first, then to parts, then to faces.
///
/// Calls from several threads wait for each other, because the geometry kernel has global state. Nothing
/// is printed; to that end, what other threads send to `std::cout` while a BREP file is read is lost.
GTM_EXPORT CadResult readCad(const std::filesystem::path& file, const CadOptions& options = {});

} // namespace gtm::bundled
