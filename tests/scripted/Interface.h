#pragma once

#include "gtm/Interface.h"
#include "tests/scripted/Answers.h"

#include <cstddef>
#include <string>

namespace scripted {

class WorkingCopy;

class Interface final : public gtm::Interface {
public:
    Interface(WorkingCopy& copy, std::size_t serial, std::string name, Sides sides);
    ~Interface();

    WorkingCopy& copy() const { return m_copy; }
    std::size_t serial() const { return m_serial; }
    InterfaceAnswers& answers() { return m_answers; }
    const InterfaceAnswers& answers() const { return m_answers; }
    const Sides& sides() const { return m_sides; }
    void join(Sides sides);

    /// As messages of the record name it.
    std::string subject() const { return "interface \"" + m_name + "\""; }

    /// What the interface answers when nothing else is set.
    State judgedState() const;

    std::string m_name;

private:
    void leaveSides();

    WorkingCopy& m_copy;
    std::size_t m_serial;
    Sides m_sides;
    InterfaceAnswers m_answers;
};

inline Interface* scriptedOf(gtm::Interface* interface) { return static_cast<Interface*>(interface); }
inline const Interface* scriptedOf(const gtm::Interface* interface) { return static_cast<const Interface*>(interface); }

} // namespace scripted
