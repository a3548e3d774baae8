#pragma once

#include "gtm/Boundary.h"
#include "tests/scripted/Answers.h"
#include "tests/scripted/Location.h"

#include <cstddef>
#include <list>
#include <optional>
#include <string>
#include <vector>

namespace scripted {

class Interface;
class Interior;

class Boundary final : public gtm::Boundary {
public:
    /// Without a place it is the default boundary of its interior.
    Boundary(Interior& interior, std::string name, std::optional<Place> place);
    ~Boundary() = default;

    Interior& owner() const { return m_interior; }
    Location* location() { return m_location ? &*m_location : nullptr; }
    const Location* location() const { return m_location ? &*m_location : nullptr; }
    BoundaryAnswers& answersToSet() { return m_answers.write(); }
    const BoundaryAnswers& answers() const { return m_answers.read(); }

    /// As messages of the record name it.
    std::string subject() const { return "boundary \"" + m_name + "\""; }

    void endInterfaces();

    // What the boundary answers when nothing else is set.
    std::vector<gtm::FaceUse*> resolvedFaceUses() const;
    State judgedState() const;
    State placementState() const { return state(); }

    std::string m_name;
    std::list<Boundary>::iterator m_self; // among the boundaries of its interior, unless it is the default one

    /// The interfaces that use the boundary, in the order in which they came to do so.
    std::list<Interface*> m_interfaces;

private:
    Interior& m_interior;
    std::optional<Location> m_location;
    SetAnswers<BoundaryAnswers> m_answers;
};

inline Boundary* scriptedOf(gtm::Boundary* boundary) { return static_cast<Boundary*>(boundary); }
inline const Boundary* scriptedOf(const gtm::Boundary* boundary) { return static_cast<const Boundary*>(boundary); }

} // namespace scripted
