#pragma once

#include "gtm/Export.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyBuilder.h"

#include <array>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace gtm::bundled {

/// Why no topology can be made of a CGNS file: a whole sentence that names the file and the place in it,
/// and says what to do.
class GTM_EXPORT CgnsError : public TopologyError {
public:
    using TopologyError::TopologyError;
};

/// How a CGNS file is read.
struct CgnsOptions {
    /// Whether all zones of one family make one body, called as the family. A zone without a family is a
    /// body by itself.
    bool bodiesAreFamilies = false;
};

/// What the file says about a zone.
struct CgnsZone {
    std::string body;   ///< id of the body that it is, or is a piece of
    std::string name;   ///< as in the file
    std::string family; ///< as in the file; empty when it names none
};

/// What the file says about the face of a boundary condition.
struct CgnsCondition {
    std::string face; ///< id of the face

    /// "BCWallViscous"; of a condition that leaves it to its family, what the family says, or
    /// "FamilySpecified" when the family says nothing.
    std::string type;
    std::string family; ///< as in the file; empty when it names none
    std::string name;   ///< as in the file, without the zone
};

/// Two faces that the file declares periodic. The first maps onto the second by a rotation about
/// `rotationCentre`, and then by a translation.
struct CgnsPeriodic {
    /// How the first face maps onto the second.
    enum class Kind {
        Translation, ///< without turning
        Rotation     ///< turning, and perhaps moving too
    };

    std::string name;       ///< as the file calls the first of the two connectivities
    std::string firstFace;  ///< id of the face that is mapped
    std::string secondFace; ///< id of the face onto which it is mapped

    /// `Rotation` as soon as an angle is not zero.
    Kind kind = Kind::Translation;
    std::array<double, 3> rotationCentre = {}; ///< in the length unit of the file
    std::array<double, 3> rotationAngle = {};  ///< about the axes x, y and z, in radians
    std::array<double, 3> translation = {};    ///< in the length unit of the file
};

/// What was read.
struct CgnsResult {
    /// Never null. Bodies and faces are in the order of the file, the uncovered faces last.
    std::unique_ptr<LocationModel> model;

    std::vector<CgnsZone> zones;           ///< in the order of the file
    std::vector<CgnsCondition> conditions; ///< in the order of the file
    std::vector<CgnsPeriodic> periodics;   ///< in the order of the file, each pair once

    /// The id of each body and face that is not called as in the file, with its name there; that of a face
    /// follows the id of its zone: "ZONE/NAME".
    std::map<std::string, std::string> renamed;

    /// What the file has and the model has not, and everything that was changed or doubtful; one
    /// sentence each, in the same order on every run.
    std::vector<std::string> notes;
};

/// Reads a CGNS file of any version, HDF5 or ADF, with one three-dimensional base. Throws `CgnsError`.
///
/// Each zone becomes a body. A boundary condition becomes a face called "ZONE/CONDITION"; its two sides
/// belong to the same body when it lies inside the zone. Two connectivities that answer each other become
/// one face, called after the first of them in the file, with a side for each; if they are periodic, they
/// stay two faces. The part of a zone's surface that is in no condition and no connectivity becomes the
/// face "ZONE/uncovered".
///
/// The solver zone of a body, or of a side of a face, is the `Ordinal` that the file gives; a side without
/// one has the number of the other side. Where the file gives none, numbers that are not taken are given
/// from 1 up, to zones first, then to faces. The second side looks the other way.
///
/// One rule maps names to ids: blanks at the ends go, a comma or a control character becomes "_", and
/// what is then empty or "NONE" is called "zone-N", or "face-N" within its zone; an id that is taken gets
/// "-2", "-3" and so on.
///
/// Calls from several threads wait for each other, because the file library has global state.
GTM_EXPORT CgnsResult readCgns(const std::filesystem::path& file, const CgnsOptions& options = {});

} // namespace gtm::bundled
