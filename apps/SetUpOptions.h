#pragma once

#include "apps/ReadingOptions.h"

#include <filesystem>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace physics::apps {

/// The options of every verb that takes a set-up in either form: a case file, which names its geometry, or a
/// saved text, which does not.
class SetUpOptions {
public:
    /// This object must outlive `app`.
    void addTo(CLI::App& app);

    const std::string& geometry() const { return m_geometry; }
    ReadingChoice reading() const { return m_reading.value(); }

    /// Throws `InputError` when the options are given and none of the files is a saved text.
    void refuseWithout(const std::vector<std::string>& files) const;

private:
    std::string m_geometry;
    ReadingOptions m_reading;
};

/// What verbs say about an argument that takes either form.
inline constexpr const char* setUpHelp = "A case file (*.json), or a saved text (any other name)";

/// Files named *.json are case files, all others saved texts.
bool isCaseFile(const std::filesystem::path& file);

} // namespace physics::apps
