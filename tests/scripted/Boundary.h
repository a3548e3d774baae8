#pragma once

#include "gtm/Boundary.h"
#include "tests/scripted/Answers.h"
#include "tests/scripted/Location.h"

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace scripted {

class Interface;
class Interior;

class Boundary final : public gtm::Boundary {
public:
    /// Without a place it is the default boundary of its interior.
    Boundary(Interior& interior, std::size_t serial, std::string name, std::optional<Place> place);
    ~Boundary() = default;

    Interior& owner() const { return m_interior; }
    std::size_t serial() const { return m_serial; }
    Location* location() const { return m_location.get(); }
    BoundaryAnswers& answers() { return m_answers; }
    const BoundaryAnswers& answers() const { return m_answers; }

    /// As messages of the record name it.
    std::string subject() const { return "boundary \"" + m_name + "\""; }

    void endInterfaces();

    // What the boundary answers when nothing else is set.
    std::vector<gtm::FaceUse*> resolvedFaceUses() const;
    State judgedState() const;
    State placementState() const { return state(); }

    std::string m_name;

    /// The interfaces that use the boundary, by their serial.
    std::map<std::size_t, Interface*> m_interfaces;

private:
    Interior& m_interior;
    std::size_t m_serial;
    std::unique_ptr<Location> m_location;
    BoundaryAnswers m_answers;
};

inline Boundary* scriptedOf(gtm::Boundary* boundary) { return static_cast<Boundary*>(boundary); }
inline const Boundary* scriptedOf(const gtm::Boundary* boundary) { return static_cast<const Boundary*>(boundary); }

} // namespace scripted
