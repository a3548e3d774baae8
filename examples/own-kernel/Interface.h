#pragma once

#include "gtm/Interface.h"

#include <string>
#include <utility>

namespace own {

class WorkingCopy;

/// Owned by its working copy; its boundaries are not its own.
class Interface final : public gtm::Interface {
public:
    Interface(WorkingCopy& copy, std::string name, Sides sides)
        : m_copy(copy), m_name(std::move(name)), m_sides(std::move(sides))
    {}
    ~Interface() = default;

    WorkingCopy& m_copy;
    std::string m_name;
    Sides m_sides;
};

} // namespace own
