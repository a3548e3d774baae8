#pragma once

#include "gtm/Interface.h"
#include "tests/scripted/Answers.h"

#include <list>
#include <string>
#include <vector>

namespace scripted {

class Boundary;
class WorkingCopy;

class Interface final : public gtm::Interface {
public:
    Interface(WorkingCopy& copy, std::string name, const Sides& sides);
    ~Interface();

    WorkingCopy& copy() const { return m_copy; }
    InterfaceAnswers& answersToSet() { return m_answers.write(); }
    const InterfaceAnswers& answers() const { return m_answers.read(); }
    Sides sides() const;
    void join(const Sides& sides);

    /// As messages of the record name it.
    std::string subject() const { return "interface \"" + m_name + "\""; }

    /// What the interface answers when nothing else is set.
    State judgedState() const;

    std::string m_name;
    std::list<Interface>::iterator m_self; // among the interfaces of its working copy

private:
    /// One boundary on a side or on both.
    struct Use {
        Boundary* boundary;
        bool isOnFirstSide;
        bool isOnSecondSide;
        std::list<Interface*>::iterator place; // among the interfaces of the boundary
    };

    void leaveSides();

    WorkingCopy& m_copy;
    std::vector<Use> m_uses;
    SetAnswers<InterfaceAnswers> m_answers;
};

inline Interface* scriptedOf(gtm::Interface* interface) { return static_cast<Interface*>(interface); }
inline const Interface* scriptedOf(const gtm::Interface* interface) { return static_cast<const Interface*>(interface); }

} // namespace scripted
