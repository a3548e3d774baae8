#pragma once

#include "physics/saved/Records.h"

#include <cstddef>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace gtm {
class VirtualTopology;
}

namespace physics {

class TextReader;

/// Whether the records of a text that could be read make a set-up: what refers to what, and whether the
/// location model has the regions. A text that the writer made always passes.
class Consistency {
public:
    Consistency(const SavedSetUp& saved, const gtm::VirtualTopology& topology, const TextReader& reader)
        : m_saved(saved), m_topology(topology), m_reader(reader)
    {}

    /// What is wrong, in the order of the kinds of records: each a sentence behind the line number. At most
    /// a hundred, since what follows is mostly the consequence of one fault.
    std::vector<std::string> complaints();

private:
    template <class Record>
    using ById = std::unordered_map<int, const Record*>;

    void complain(std::size_t position, const std::string& sentence);
    bool isEnough() const;

    void checkTopology();
    void checkPlace(const PlaceRecord& place, bool isDefaultActive, bool& hasDefault);
    void checkRegions(const LocationRecord& location);
    template <class Record>
    ById<Record> checkBlock(const ReadBlock<Record>& block);
    void checkModels();
    void checkVolumes();
    void checkBoundaries();
    void checkInterfaces();
    void checkPatches();
    void checkSettings();
    void checkSettingsObject(const SettingsRecord& record);
    void checkGroups();

    /// Complains unless both ends of a relation say so: `ids` of one object must be exactly those of the
    /// others that name it.
    template <class Record>
    void checkMembers(const Record& holder, const std::vector<int>& ids, const std::unordered_set<int>& expected,
                      const char* noun);

    std::string nearestId(const std::string& id) const;

    const SavedSetUp& m_saved;
    const gtm::VirtualTopology& m_topology;
    const TextReader& m_reader;
    std::vector<std::string> m_complaints;

    std::unordered_map<int, const InteriorRecord*> m_interiors;
    std::unordered_map<int, const InteriorRecord*> m_interiorOfPlace;
    std::unordered_map<int, const PlaceRecord*> m_places;
    std::unordered_set<int> m_joins;
    ById<ModelRecord> m_models;
    ById<VolumeRecord> m_volumes;
    ById<BoundaryRecord> m_boundaries;
    ById<InterfaceRecord> m_interfaces;
    ById<PatchRecord> m_patches;
    ById<SettingsRecord> m_settings;
};

} // namespace physics
