#pragma once

#include "gtm/LocationModel.h"
#include "locationmodel/LocationModel.h"

#include <cstddef>
#include <list>
#include <memory>
#include <set>
#include <string>
#include <vector>

/// The bundled location model once more, as plainly as possible: every answer is worked out from all
/// entities each time it is asked for. Tests compare the real one with it.
namespace bruteforce {

/// A term of a location. Regions are named by their pointers.
struct Term {
    enum class Kind { Region, Prefix, Unknown };

    Kind kind = Kind::Unknown;
    bool takesAway = false;
    gtm::Region* region = nullptr;
    std::string prefix; ///< of a name "prefix*"

    std::string text() const;
};

struct Location {
    bool isList = false;
    std::vector<Term> terms;

    std::string text() const;
    std::vector<gtm::Region*> regions() const;
};

struct Interior {
    bool isDefault = false;
    Location location;
    std::string name;
    bool hasDefaultBoundary = false;
    gtm::Interior* real = nullptr;
};

struct Boundary {
    Interior* interior = nullptr;
    bool isDefault = false;
    Location location;
    std::string name;
    gtm::Boundary* real = nullptr;
};

struct Interface {
    std::set<Boundary*> first;
    std::set<Boundary*> second;
    std::string name;
    gtm::Interface* real = nullptr;
};

class World {
public:
    explicit World(const gtm::bundled::LocationModel& model);

    using Bodies = std::vector<gtm::Body*>;
    using FaceUses = std::vector<gtm::FaceUse*>;

    // What the interiors stand for; all lists are in the order of the topology or of creation.
    bool isNamed(const Interior& interior, const gtm::Body* body) const;
    Bodies bodies(const Interior& interior) const;
    bool has(const Interior& interior, const gtm::Body* body) const;
    bool isOutward(const Interior& interior, const gtm::FaceUse* faceUse) const;
    std::vector<gtm::Face*> internalFaces(const Interior& interior) const;
    std::vector<gtm::Face*> unusedInternalFaces(const Interior& interior) const;
    FaceUses unclaimed(const Interior& interior) const;
    std::vector<gtm::Interior*> overlapping(const Interior& interior) const;
    gtm::Interior::State placement(const Interior& interior) const;
    gtm::Interior::State state(const Interior& interior) const;

    // What the boundaries stand for.
    bool isPlaced(const Boundary& boundary, const gtm::FaceUse* faceUse) const;
    FaceUses faceUses(const Boundary& boundary) const;
    std::vector<gtm::Boundary*> overlapping(const Boundary& boundary) const;
    bool isInternal(const Boundary& boundary) const;
    const gtm::Boundary* pair(const Boundary& boundary) const;
    gtm::Boundary::State state(const Boundary& boundary) const;

    gtm::Interface::State state(const Interface& interface) const;

    // What remove leaves of a location.
    Location without(const Interior& interior, const std::vector<gtm::Region*>& regions) const;
    Location without(const Boundary& boundary, const std::vector<gtm::Region*>& regions) const;

    /// The boundaries of an interior, the default one last when it is active.
    std::vector<const Boundary*> boundariesOf(const Interior& interior) const;

    const gtm::bundled::LocationModel& model;
    std::set<gtm::Body*> masked;
    bool isDefaultActive = false;
    std::list<std::unique_ptr<Interior>> interiors;  ///< without the default one
    std::list<std::unique_ptr<Boundary>> boundaries; ///< without default ones
    std::list<std::unique_ptr<Interface>> interfaces;
    Interior defaultInterior;

private:
    bool names(const Term& term, const gtm::Body* body) const;
    bool names(const Term& term, const Interior& interior, const gtm::FaceUse* faceUse) const;
    bool touches(const Term& term, const Interior& interior) const;
};

} // namespace bruteforce
