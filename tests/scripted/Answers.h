#pragma once

#include "gtm/Boundary.h"
#include "gtm/Interface.h"
#include "gtm/Interior.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace scripted {

// What a test makes the location model say. A field that is set is the answer, whatever the location
// is; a field that is not set is worked out from the location, or is the answer of a sound entity.
// Lists may hold null. The results of `relocate` and `remove` hold for every later call; a relocation
// with a result moves the entity as the result says, a removal with a result changes nothing. The
// result of `rename` is only what the caller is told: the name becomes what was asked for.

struct InteriorAnswers {
    std::optional<gtm::Interior::State> state;
    std::optional<std::vector<gtm::Body*>> bodies;
    std::optional<std::vector<gtm::Face*>> internalFaces;
    std::optional<std::vector<gtm::FaceUse*>> unusedFaceUses;
    std::optional<std::vector<gtm::Face*>> unusedInternalFaces;
    std::optional<std::vector<gtm::Interior*>> overlappingInteriors;
    std::optional<std::vector<gtm::Body*>> overlap;
    std::optional<std::vector<std::string>> unresolvableNames;
    std::optional<gtm::Interior::State> relocateResult;
    std::optional<bool> removeResult;
    std::optional<std::string> renameResult;
    /// Refuses the next `createBoundary`, once.
    std::optional<gtm::Boundary::State> refuseNextBoundary;
    bool hasNoDefaultBoundary = false;
    bool hasNoLocation = false;
};

struct BoundaryAnswers {
    std::optional<gtm::Boundary::State> state;
    std::optional<std::vector<gtm::FaceUse*>> faceUses;
    std::optional<std::vector<gtm::Boundary*>> overlappingBoundaries;
    std::optional<std::vector<gtm::FaceUse*>> overlap;
    std::optional<std::vector<std::string>> unresolvableNames;
    std::optional<bool> isInternal;
    bool hasNoLocation = false;
    std::optional<gtm::Boundary*> pair;
    std::optional<gtm::Boundary::State> relocateResult;
    std::optional<bool> removeResult;
    std::optional<std::string> renameResult;
};

struct InterfaceAnswers {
    std::optional<gtm::Interface::State> state;
    std::optional<gtm::Interface::State> relocateResult;
    std::optional<std::string> renameResult;
};

struct VirtualTopologyAnswers {
    /// Refuses the next creation, once.
    std::optional<gtm::Interior::State> refuseNextInterior;
    std::optional<gtm::Interface::State> refuseNextInterface;
    bool hasNoDefaultInterior = false;
    std::optional<bool> isValid;
    std::optional<std::vector<gtm::Body*>> unusedBodies;
};

/// The answers of one entity: made when a test sets one, because most entities are left alone.
template <class Answers>
class SetAnswers {
public:
    const Answers& read() const
    {
        static const Answers none;
        return m_answers ? *m_answers : none;
    }
    Answers& write()
    {
        if (!m_answers) {
            m_answers = std::make_unique<Answers>();
        }
        return *m_answers;
    }

private:
    std::unique_ptr<Answers> m_answers;
};

/// The answers of a living entity of this location model; they end with it.
InteriorAnswers& answersOf(gtm::Interior* interior);
BoundaryAnswers& answersOf(gtm::Boundary* boundary);
InterfaceAnswers& answersOf(gtm::Interface* interface);

} // namespace scripted
