#pragma once

#include "physics/TypeManager.h"
#include "physics/Types.h"
#include "physics/saved/TextWriter.h"

#include <array>
#include <cstddef>
#include <string>
#include <vector>

// The records of a saved text. Each `describe` names the fields in their order in the text; the writer and
// the reader both follow it. The text is explained in docs/saved-text.md. Versions are 0, read and not
// looked at; `position` is where a record begins in a text that was read.

namespace physics {

class Boundary;
class BoundaryPatch;
class Interface;
class Model;
class Settings;
class Volume;

/// Where a location-model entity lies.
struct LocationRecord {
    enum Code : int { Regions = 0, Implicit = 1, Default = 2 };
    static constexpr int withoutText = 3; ///< added to `Regions` and `Implicit` when there is no text

    int code = Regions;
    std::string text;
    std::size_t position = 0;

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        format.begin(record.position);
        if constexpr (Format::isReading) {
            int code = 0;
            format.integer("a location code from 0 to 4", code);
            if (code < 0 || code > Implicit + withoutText)
                format.failAt(record.position, "a location code from 0 to 4");
            if (code < Default)
                format.restOfLine("the text of a location", record.text);
            record.code = code > Default ? code - withoutText : code;
        } else {
            const bool hasText = record.code < Default && !record.text.empty();
            format.integer("", record.code < Default && !hasText ? record.code + withoutText : record.code);
            if (hasText)
                format.restOfLine("", record.text);
        }
        format.endLine();
    }

    bool isDefault() const { return code == Default; }
};

/// A location-model boundary, and the beginning of an interior.
struct PlaceRecord {
    int index = 0;
    std::string name;
    LocationRecord location;
    std::size_t position = 0;

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        format.begin(record.position);
        format.integer("the topology index of an interior or boundary", record.index);
        format.restOfLine("the name of an interior or boundary", record.name);
        format.endLine();
        LocationRecord::describe(format, record.location);
    }
};

struct InteriorRecord {
    PlaceRecord place;
    bool isDefaultBoundaryActive = false;
    std::vector<PlaceRecord> boundaries;

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        PlaceRecord::describe(format, record.place);
        std::size_t count = record.boundaries.size();
        format.count("the number of boundaries of an interior", count);
        format.boolean("the flag of the default boundary", record.isDefaultBoundaryActive);
        format.endLine();
        format.records(record.boundaries, count);
    }
};

/// A location-model interface.
struct JoinRecord {
    int index = 0;
    std::string name;
    std::array<std::vector<int>, 2> sides; ///< topology indices of boundaries
    std::size_t position = 0;

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        format.begin(record.position);
        format.integer("the topology index of an interface", record.index);
        format.restOfLine("the name of an interface", record.name);
        format.endLine();
        for (auto& side : record.sides)
            format.idList("a boundary on a side of an interface", side);
    }
};

struct GroupRecord {
    int number = 0;
    std::vector<int> volumes;
    std::size_t position = 0;

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        format.begin(record.position);
        format.integer("the number of an activation group", record.number);
        format.endLine();
        format.idList("a volume of an activation group", record.volumes);
    }
};

struct DomainRecord {
    int id = 0;
    DomainType type = DomainType::Unset;
    std::string name;

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        format.integer("a domain's id", record.id);
        format.enumerator("a domain's type", record.type);
        format.endLine();
        format.restOfLine("a domain's name", record.name);
        format.endLine();
    }
};

/// The six settings maps of a model, in their order in the text.
enum class SettingsMap { Volume, Internal, PatchVolume, PatchShell, PatchInterface, Interface };
constexpr std::size_t noOfSettingsMaps = 6;

struct ModelRecord {
    using Object = Model;

    int version = 0;
    int id = 0;
    std::vector<int> volumes;
    std::vector<int> boundaries;
    std::vector<int> interfaces;
    std::array<PairList, noOfSettingsMaps> settings;
    std::vector<DomainRecord> domains;
    std::size_t position = 0;

    static constexpr const char* noun = "model";

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        format.begin(record.position);
        format.integer("a model's version", record.version);
        format.integer("a model's id", record.id);
        format.endLine();
        format.idList("a volume of a model", record.volumes);
        format.idList("a shell boundary of a model", record.boundaries);
        format.idList("an interface of a model", record.interfaces);
        for (auto& pairs : record.settings)
            format.pairList("settings of a model", pairs);
        std::size_t count = record.domains.size();
        format.count("the number of domains of a model", count);
        format.endLine();
        format.records(record.domains, count);
    }
};

struct VolumeRecord {
    using Object = Volume;

    int version = 0;
    int id = 0;
    VolumeType type = VolumeType::Unset;
    int model = -1;
    int interior = 0;
    int activationGroup = -1;
    bool isDefault = false;
    int defaultBoundary = -1;
    std::vector<int> boundaries;
    std::size_t position = 0;

    static constexpr const char* noun = "volume";

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        format.begin(record.position);
        format.integer("a volume's version", record.version);
        format.integer("a volume's id", record.id);
        format.enumerator("a volume's type", record.type);
        format.integer("a volume's model", record.model);
        format.integer("a volume's interior", record.interior);
        format.integer("a volume's activation group", record.activationGroup);
        format.boolean("a volume's default flag", record.isDefault);
        format.integer("a volume's default boundary", record.defaultBoundary);
        format.endLine();
        format.idList("a boundary of a volume", record.boundaries);
    }
};

struct BoundaryRecord {
    using Object = Boundary;

    int version = 0;
    int id = 0;
    BoundaryType type = BoundaryType::Unset;
    ShellType shellType = ShellType::Unset;
    int shellModel = -1;
    int place = 0;
    int volume = -1;
    bool isDefault = false;
    PairList patches; ///< interface, or -1 for the own patch, to patch
    std::vector<int> tags;
    std::size_t position = 0;

    static constexpr const char* noun = "boundary";

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        format.begin(record.position);
        format.integer("a boundary's version", record.version);
        format.integer("a boundary's id", record.id);
        format.enumerator("a boundary's type", record.type);
        format.enumerator("a boundary's shell type", record.shellType);
        format.integer("a boundary's shell model", record.shellModel);
        format.integer("a boundary's topology index", record.place);
        format.integer("a boundary's volume", record.volume);
        format.boolean("a boundary's default flag", record.isDefault);
        format.endLine();
        format.pairList("a patch of a boundary", record.patches);
        format.idList("a tag of a boundary", record.tags);
    }
};

struct InterfaceRecord {
    using Object = Interface;

    int version = 0;
    int id = 0;
    InterfaceType type = InterfaceType::Unset;
    Periodicity periodicity = Periodicity::NonPeriodic;
    MeshConnectivity meshConnectivity = MeshConnectivity::Automatic;
    int model = -1;
    int join = 0;
    std::array<int, 2> boundaries = {-1, -1};
    bool isMapped = false;
    bool isStatic = false;
    bool isMeshValid = false;
    std::size_t position = 0;

    static constexpr const char* noun = "interface";

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        format.begin(record.position);
        format.integer("an interface's version", record.version);
        format.integer("an interface's id", record.id);
        format.enumerator("an interface's type", record.type);
        format.enumerator("an interface's periodicity", record.periodicity);
        format.enumerator("an interface's mesh connectivity", record.meshConnectivity);
        format.integer("an interface's model", record.model);
        format.integer("an interface's topology index", record.join);
        for (auto& boundary : record.boundaries)
            format.integer("an interface's boundary", boundary);
        format.boolean("an interface's flag", record.isMapped);
        format.boolean("an interface's flag", record.isStatic);
        format.boolean("an interface's flag", record.isMeshValid);
        format.endLine();
    }
};

struct PatchRecord {
    using Object = BoundaryPatch;

    int version = 0;
    int id = 0;
    int boundary = -1;
    int interface = -1;
    std::size_t position = 0;

    static constexpr const char* noun = "boundary patch";

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        format.begin(record.position);
        format.integer("a patch's version", record.version);
        format.integer("a patch's id", record.id);
        format.integer("a patch's boundary", record.boundary);
        format.integer("a patch's interface", record.interface);
        format.endLine();
    }
};

struct BundleRecord {
    int version = 0;
    int index = 0;
    int threadId = 0;
    ThreadType type = ThreadType::Unset;
    std::vector<int> domainIds;
    std::vector<int> zoneIds; ///< the own zones only: inherited ones come from the location model again

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        format.integer("a thread bundle's version", record.version);
        format.integer("a thread bundle's index", record.index);
        format.integer("a thread bundle's thread id", record.threadId);
        format.enumerator("a thread bundle's type", record.type);
        format.idList("a domain of a thread bundle", record.domainIds);
        format.idList("a zone of a thread bundle", record.zoneIds);
    }
};

struct SettingsRecord {
    using Object = Settings;

    int version = 0;
    int id = 0;
    SettingsType type = SettingsType::VolumeSettings;
    TopologyType topologyType = TopologyType::Volume;
    int model = -1;
    int volume = -1;
    int patch = -1;
    int interface = -1;
    std::vector<BundleRecord> bundles;
    std::size_t position = 0;

    static constexpr const char* noun = "settings object";

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        format.begin(record.position);
        format.integer("a settings object's version", record.version);
        format.integer("a settings object's id", record.id);
        format.enumerator("a settings object's type", record.type);
        format.enumerator("a settings object's topology type", record.topologyType);
        format.integer("a settings object's model", record.model);
        format.integer("a settings object's volume", record.volume);
        format.integer("a settings object's patch", record.patch);
        format.integer("a settings object's interface", record.interface);
        format.endLine();
        std::size_t count = record.bundles.size();
        format.count("the number of thread bundles of a settings object", count);
        format.endLine();
        format.records(record.bundles, count);
    }
};

/// All objects of one class in a text that was read: the ids announced, the class's counter, and one record
/// for each object.
template <class Record>
struct ReadBlock {
    std::vector<int> ids;
    int lastUsedId = 0;
    std::vector<Record> records;
    std::size_t position = 0; ///< of the ids
};

/// A whole saved text, with its objects in blocks of some kind.
template <template <class Record> class Block>
struct SetUpRecord {
    int version = 0;
    LocationRecord maskedBodies;
    bool isDefaultInteriorActive = false;
    std::vector<InteriorRecord> interiors;
    std::vector<JoinRecord> joins;
    bool enforceRestrictions = false;
    TypeManager types;
    Block<ModelRecord> models;
    Block<VolumeRecord> volumes;
    Block<BoundaryRecord> boundaries;
    Block<InterfaceRecord> interfaces;
    Block<PatchRecord> patches;
    Block<SettingsRecord> settings;
    int defaultVolume = -1;
    std::size_t defaultVolumePosition = 0;
    std::vector<GroupRecord> groups;
    bool reportCreationFailures = false;

    template <class Format, class Record>
    static void describe(Format& format, Record& record)
    {
        format.integer("the format version", record.version);
        format.endLine();
        LocationRecord::describe(format, record.maskedBodies);

        std::size_t interiors = record.interiors.size();
        format.count("the number of interiors", interiors);
        format.boolean("the flag of the default interior", record.isDefaultInteriorActive);
        format.endLine();
        format.records(record.interiors, interiors);

        std::size_t joins = record.joins.size();
        format.count("the number of interfaces of the location model", joins);
        format.endLine();
        format.records(record.joins, joins);

        format.boolean("the flag that enforces restrictions", record.enforceRestrictions);
        format.endLine();
        format.typeTables(record.types);

        describeIds(format, "the id of a model", record.models);
        describeIds(format, "the id of a volume", record.volumes);
        describeIds(format, "the id of a boundary", record.boundaries);
        describeIds(format, "the id of an interface", record.interfaces);
        describeIds(format, "the id of a boundary patch", record.patches);
        describeIds(format, "the id of a settings object", record.settings);

        format.begin(record.defaultVolumePosition);
        format.integer("the id of the default volume", record.defaultVolume);
        format.endLine();
        std::size_t groups = record.groups.size();
        format.count("the number of activation groups", groups);
        format.endLine();
        format.records(record.groups, groups);
        format.boolean("the flag that reports failures", record.reportCreationFailures);
        format.endLine();

        // Boundaries before volumes here, and after them among the ids above.
        describeBlock(format, record.models);
        describeBlock(format, record.boundaries);
        describeBlock(format, record.volumes);
        describeBlock(format, record.interfaces);
        describeBlock(format, record.patches);
        describeBlock(format, record.settings);
    }

private:
    template <class Format, class AnyBlock>
    static void describeIds(Format& format, const char* label, AnyBlock& block)
    {
        format.begin(block.position);
        format.idList(label, block.ids);
    }

    template <class Format, class AnyBlock>
    static void describeBlock(Format& format, AnyBlock& block)
    {
        format.integer("an id counter", block.lastUsedId);
        format.endLine();
        format.records(block.records, block.ids.size());
    }
};

/// A saved text that was read.
struct SavedSetUp : SetUpRecord<ReadBlock> {};

} // namespace physics
