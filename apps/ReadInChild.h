#pragma once

#include "importers/cgns/CgnsReader.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace physics::apps {

/// What a reader makes of a geometry file, in a form that goes from process to process.
struct TopologyText {
    std::string topology; ///< as in a topology file
    std::vector<std::string> notes;
    std::map<std::string, std::string> renamed = {}; ///< names in the file by id, where they differ

    /// As in `GeometryFile`; empty for what has no such things.
    std::vector<gtm::bundled::CgnsZone> zones = {};
    std::vector<gtm::bundled::CgnsCondition> conditions = {};
    std::vector<gtm::bundled::CgnsPeriodic> periodics = {};
};

/// Runs a reader in a child process, because libraries that read geometry can crash over a damaged file. Throws
/// `InputError` with what the reader throws, or, after a crash, with a sentence about the file that names the
/// `library`: "the geometry kernel".
TopologyText readInChild(const std::string& file, const std::string& library,
                         const std::function<TopologyText()>& read);

} // namespace physics::apps
