#pragma once

#include <optional>

namespace CLI {
class App;
}

namespace physics::apps {

/// The options --imprint and --no-imprint of every verb that is given a geometry file.
class ImprintOption {
public:
    /// This object must outlive `app`.
    void addTo(CLI::App& app);

    /// What was asked for; nothing leaves it to the reader.
    std::optional<bool> value() const { return m_yes || m_no ? std::optional(m_yes) : std::nullopt; }

private:
    bool m_yes = false;
    bool m_no = false;
};

} // namespace physics::apps
