#pragma once

#include "apps/CaseBuilder.h"
#include "apps/GeometryFile.h"

#include <filesystem>

namespace physics::apps {

class Output;

/// A set-up restored from a saved text on the geometry of a file.
class RestoredSetUp {
public:
    /// Notes about the geometry go to `output`. Throws `InputError` with all reasons why the text cannot be
    /// restored, each behind the number of its line.
    RestoredSetUp(const std::filesystem::path& geometry, const ReadingChoice& reading,
                  const std::filesystem::path& text, Output& output);

    const gtm::bundled::LocationModel& locationModel() const { return *m_geometry.model; }

    /// Nothing in it is refused, and its models have no names.
    const BuiltCase& built() const { return m_built; }

private:
    GeometryFile m_geometry;
    BuiltCase m_built; // ends before the location model under it
};

} // namespace physics::apps
