#pragma once

#include "apps/LoadedCase.h"
#include "apps/RestoredSetUp.h"

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

namespace physics::apps {

class Output;
class SetUpOptions;

/// A set-up from a file of either kind: built from a case file, or restored from a saved text.
class LoadedSetUp {
public:
    /// Notes about the geometry go to `output`. Throws `InputError`, also when a saved text comes without
    /// geometry. `restrictions` is for building: restoring refuses nothing on account of them.
    LoadedSetUp(const std::filesystem::path& file, const SetUpOptions& options, Output& output,
                LoadedCase::Restrictions restrictions = LoadedCase::Restrictions::AsInFile);

    /// The case that the set-up was built from; null when it was restored.
    const LoadedCase* asCase() const { return std::get_if<LoadedCase>(&m_loaded); }
    bool isCase() const { return asCase() != nullptr; }
    const BuiltCase& built() const;
    const gtm::bundled::LocationModel& locationModel() const;

    /// A line for each thing that the case file asks for and the set-up does not have.
    std::vector<std::string> refusals() const;

private:
    std::variant<LoadedCase, RestoredSetUp> m_loaded;
};

} // namespace physics::apps
