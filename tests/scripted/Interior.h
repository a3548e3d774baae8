#pragma once

#include "gtm/Interior.h"
#include "tests/scripted/Answers.h"
#include "tests/scripted/Boundary.h"
#include "tests/scripted/Location.h"

#include <cstddef>
#include <list>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace scripted {

class WorkingCopy;

class Interior final : public gtm::Interior {
public:
    /// Without a place it is the default interior of its working copy.
    Interior(WorkingCopy& copy, std::string name, std::optional<Place> place);
    ~Interior();

    WorkingCopy& copy() const { return m_copy; }
    Location* location() { return m_location ? &*m_location : nullptr; }
    const Location* location() const { return m_location ? &*m_location : nullptr; }
    InteriorAnswers& answersToSet() { return m_answers.write(); }
    const InteriorAnswers& answers() const { return m_answers.read(); }
    Boundary* defaultBoundary() const { return &m_defaultBoundary; }

    /// As messages of the record name it.
    std::string subject() const { return "interior \"" + m_name + "\""; }

    std::pair<gtm::Boundary*, gtm::Boundary::State> createBoundary(const std::string& name, Place place,
                                                                   bool enforceRestrictions);
    void end(Boundary* boundary);

    /// Ends all boundaries with their interfaces; the default boundary stays, switched off.
    void endBoundaries();

    /// Those with a location of their own, in the order of creation.
    std::vector<Boundary*> ordinaryBoundaries() const;

    // What the interior answers when nothing else is set.
    std::vector<gtm::Body*> resolvedBodies() const;
    std::vector<gtm::Face*> resolvedInternalFaces() const;
    State placementState() const; // how the interior lies, whatever boundaries it has
    State judgedState() const;

    /// The face uses of the bodies but for those of internal faces and those of `boundaries`.
    std::vector<gtm::FaceUse*> outwardFaceUsesBeside(const std::vector<Boundary*>& boundaries) const;

    std::string m_name;
    std::list<Interior>::iterator m_self; // among the interiors of its working copy, unless it is the default one
    bool m_isDefaultBoundaryActive = false;

private:
    WorkingCopy& m_copy;
    std::optional<Location> m_location;
    SetAnswers<InteriorAnswers> m_answers;
    mutable std::list<Boundary> m_boundaries; // as with a pointer: a constant interior hands out boundaries to change
    mutable Boundary m_defaultBoundary;
};

inline Interior* scriptedOf(gtm::Interior* interior) { return static_cast<Interior*>(interior); }
inline const Interior* scriptedOf(const gtm::Interior* interior) { return static_cast<const Interior*>(interior); }

/// The face uses of all of these boundaries.
std::set<gtm::FaceUse*> faceUsesOf(const std::vector<Boundary*>& boundaries);

} // namespace scripted
