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
    /// geometry.
    LoadedSetUp(const std::filesystem::path& file, const SetUpOptions& options, Output& output);

    bool isCase() const { return std::holds_alternative<LoadedCase>(m_loaded); }
    const BuiltCase& built() const;

    /// A line for each thing that the case file asks for and the set-up does not have.
    std::vector<std::string> refusals() const;

private:
    std::variant<LoadedCase, RestoredSetUp> m_loaded;
};

} // namespace physics::apps
