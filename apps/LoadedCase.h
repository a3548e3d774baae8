#pragma once

#include "apps/CaseBuilder.h"
#include "apps/CaseFile.h"
#include "apps/GeometryFile.h"
#include "support/JsonSource.h"

#include <filesystem>
#include <string>
#include <vector>

namespace physics::apps {

class Output;

/// A case file with everything that was made from it: what a verb works on that is given a case.
class LoadedCase {
public:
    /// Whether the location model refuses what would not be valid. Without restrictions everything is made,
    /// so that all that is wrong can be seen at once.
    enum class Restrictions { AsInFile, Off };

    /// Reads the case file and its geometry, whose notes go to `output`, and builds the set-up. Throws
    /// `InputError` with all mistakes of the file.
    LoadedCase(const std::filesystem::path& file, Output& output, Restrictions restrictions = Restrictions::AsInFile);

    const gtm::support::JsonSource& source() const { return m_source; }
    const CaseFile& caseFile() const { return m_caseFile; }
    const gtm::bundled::LocationModel& locationModel() const { return *m_geometry.model; }
    const BuiltCase& built() const { return m_built; }

    /// A line for each refusal, or for as many as anybody reads, with its place in the file.
    const std::vector<std::string>& refusals() const { return m_refusals; }

private:
    gtm::support::JsonSource m_source;
    CaseFile m_caseFile;
    GeometryFile m_geometry;
    BuiltCase m_built; // ends before the location model under it
    std::vector<std::string> m_refusals;
};

} // namespace physics::apps
