#pragma once

#include "python/bindings/SetUp.h"

#include <memory>

namespace physics::python {

/// What `Physics.building` answers: a context in which refusals are errors. Contexts can be nested.
class Building {
public:
    explicit Building(SetUp& setUp) : m_setUp(std::static_pointer_cast<SetUp>(setUp.shared_from_this())) {}

    std::shared_ptr<SetUp> enter()
    {
        m_setUp->enterBuilding();
        return m_setUp;
    }
    void exit() { m_setUp->leaveBuilding(); }

private:
    std::shared_ptr<SetUp> m_setUp;
};

} // namespace physics::python
