#pragma once

#include "apps/ReadingChoice.h"

namespace CLI {
class App;
}

namespace physics::apps {

/// The options of every verb that is given a geometry file, which tell how it is read.
class ReadingOptions {
public:
    /// This object must outlive `app`.
    void addTo(CLI::App& app);

    /// What was asked for.
    ReadingChoice value() const;

private:
    bool m_imprints = false;
    bool m_doesNotImprint = false;
    bool m_bodiesAreFamilies = false;
};

} // namespace physics::apps
