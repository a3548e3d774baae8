#pragma once

#include "importers/cad/CadReader.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace gtm::bundled {

/// What a geometry file says about bodies and faces, in plain values: all that is left to do is to give
/// ids and to build. Names are as in the file and may be empty.
struct CadDescription {
    struct Body {
        std::string name;

        /// Its place among the solids of the file, from 1.
        std::size_t number = 0;
        std::optional<std::size_t> part;
        BodyFacts facts = {};
    };

    /// How a body sees a face of its surface.
    struct FaceUse {
        std::size_t body = 0;

        /// The name that the body gives to the face, and its place among the faces of the body from 1.
        std::string name;
        std::size_t number = 0;

        /// Whether the normal of the face points out of the body.
        bool outward = true;
    };

    /// Face uses are in the order of their bodies; at least one.
    struct Face {
        std::vector<FaceUse> uses;
        FaceFacts facts = {};

        /// Counter-clockwise as seen against the normal of the face.
        CadTriangles triangles = {};
    };

    std::vector<std::string> parts;
    std::vector<Body> bodies;
    std::vector<Face> faces;
    std::vector<std::string> notes;
};

/// The ids of a description, index by index.
struct CadIds {
    std::vector<std::string> bodies;
    std::vector<std::string> parts;
    std::vector<std::string> faces;

    /// Each id that is not the name in the file, with that name.
    std::map<std::string, std::string> renamed;

    /// Why an id is not the name in the file; one sentence each.
    std::vector<std::string> notes;
};

/// Gives the ids, as `readCad` says.
CadIds giveIds(const CadDescription& description);

/// Builds the model. Throws `CadError`, without a file name, when two bodies lie on the same side of a
/// face, or more than two share it.
CadResult buildModel(const CadDescription& description);

} // namespace gtm::bundled
