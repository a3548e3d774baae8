#pragma once

#include "gtm/Export.h"
#include "gtm/TopologyMap.h"
#include "locationmodel/RegionFacts.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace gtm::bundled {

class LocationModel;

/// What is wrong with a topology: a whole sentence that names the place and what to do.
class GTM_EXPORT TopologyError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Makes a location model step by step. Each step checks what it is given and throws `TopologyError`
/// without having changed anything, so that a reader can add its own place (file, line) and go on.
///
/// An id is not empty, has no comma, no line end, no control character and no blank at either end, and
/// names one region only.
class GTM_EXPORT TopologyBuilder {
public:
    /// One side of a face.
    struct Side {
        std::string body; ///< id of the body that it bounds

        /// Of the face use. Empty stands for "FACE@BODY", or "FACE@BODY#2" for the second side within one body.
        std::string id = {};
        std::vector<ExternalFaceSide> zones = {}; ///< solver zones of the face use, in the order of the map
    };

    TopologyBuilder();
    ~TopologyBuilder();

    /// Adds a part without bodies.
    void addPart(const std::string& id);

    /// `part` is the id of a part added before, or empty for a body outside every part.
    void addBody(const std::string& id, const std::string& part = {}, const std::vector<std::int32_t>& zoneIds = {});

    /// The bodies must have been added before. Without a second side the face bounds one body only.
    void addFace(const std::string& id, const Side& first, const std::optional<Side>& second = std::nullopt);

    /// Tells facts about a body or face added before, in place of what was told of it. Refuses numbers that are
    /// not finite, an area or volume below zero, and a colour that is not "#rrggbb" in small letters.
    /// @{
    void describeBody(const std::string& id, const BodyFacts& facts);
    void describeFace(const std::string& id, const FaceFacts& facts);
    /// @}

    /// The finished model; the builder is empty afterwards. Parts, bodies and faces keep the order in
    /// which they were added. A model without any zone has no solver zone map.
    std::unique_ptr<LocationModel> build();

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace gtm::bundled
