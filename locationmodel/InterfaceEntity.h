#pragma once

#include "gtm/Interface.h"

#include <cstdint>
#include <string>
#include <utility>

namespace gtm::bundled {

class Workspace;

/// An interface of the bundled location model. `Workspace` owns it and keeps `sides` and the lists of
/// its boundaries in step.
class InterfaceEntity final : public Interface {
public:
    InterfaceEntity(Workspace& itsWorkspace, std::uint64_t itsSerial, std::string itsName)
        : workspace(itsWorkspace), serial(itsSerial), name(std::move(itsName))
    {}

    Workspace& workspace;
    const std::uint64_t serial; ///< counts creations
    std::string name;
    Sides sides;
};

} // namespace gtm::bundled
