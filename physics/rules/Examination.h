#pragma once

#include "physics/Physics.h"
#include "physics/rules/Rule.h"

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace physics {

/// One validation call: the list of rules and what they have said so far. Nothing is kept from one call to
/// the next, and a set-up must not change during one.
class Examination {
public:
    explicit Examination(bool ignoreWarnings);

    /// What the rules say of the set-up as a whole and of each of its objects. Each boundary is looked at
    /// once, for its volume and for itself.
    std::vector<Physics::Complaint> complaints(const Physics& physics);

    /// What the rules say of the set-up as a whole, without its objects.
    std::vector<std::string> linesOf(const Physics& physics);

    /// What they say of one object. Volumes and interfaces end with one line when a boundary of theirs has
    /// an error; the boundary's own lines are not repeated.
    std::vector<std::string> linesOf(const Volume& volume);
    std::vector<std::string> linesOf(const Boundary& boundary);
    std::vector<std::string> linesOf(const Interface& interface);

private:
    void lookAt(const Boundary& boundary);
    std::vector<std::string> conclusions();
    std::vector<std::string> ownLinesOf(const Volume& volume);
    bool isFaulty(const Boundary& boundary);

    const bool m_ignoreWarnings;
    std::vector<std::unique_ptr<Rule>> m_rules;
    std::unordered_map<const Boundary*, bool> m_isFaulty; // of those in several interfaces: it may be very many
};

} // namespace physics
