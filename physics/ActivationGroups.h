#pragma once

#include "physics/Lifetime.h"

#include <map>
#include <vector>

namespace physics {

class Volume;

/// The groups of volumes that were deactivated together, by number. A volume that ends leaves its group;
/// the group stays, even empty, and keeps its number in use.
class ActivationGroups : private NonCopyable {
public:
    bool contains(int number) const { return m_groups.count(number) > 0; }

    /// Ascending.
    std::vector<int> numbers() const;

    /// The volumes in the order given, without those that ended; empty when there is no such group.
    std::vector<Volume*> volumes(int number) const;

    /// The smallest positive number that no group has.
    int smallestFreeNumber() const;

    /// Makes a group and gives its number to the volumes.
    void add(int number, const std::vector<Volume*>& volumes);

    /// Makes a group of volumes that know their numbers already.
    void restore(int number, const std::vector<Volume*>& volumes);

    /// Re-activates the volumes of a group and drops it; false when there is none.
    bool dissolve(int number);

    /// Drops all groups without touching the volumes.
    void clear();

private:
    void markUsed(int number);
    void markFree(int number);

    std::map<int, std::vector<Link<Volume>>> m_groups;
    std::map<int, int> m_usedRanges; // first to last number of each gapless run, so that a gap is found at once
};

} // namespace physics
