#pragma once

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace physics {

class Boundary;
class Interface;
class Model;
class Physics;
class Region;
class Settings;
class ThreadBundle;
class TypeManager;
class Volume;

/// The lists of a set-up that several sections of its report need, each made once and in its usual order.
struct Contents {
    explicit Contents(const Physics& setUp);

    const Physics& physics;
    std::vector<Model*> models;
    std::vector<Volume*> volumes;
    std::vector<Boundary*> boundaries;
    std::vector<Interface*> interfaces;
    std::vector<Settings*> settings;
    std::vector<int> threadIds;
    std::vector<int> zoneIds;
    std::unordered_set<const Region*> faulty; // what the rules speak against; null is the set-up as a whole
};

// The sections, in the order of the report.
void appendTypes(std::string& text, TypeManager types);
void appendModels(std::string& text, const Contents& contents);
void appendRegions(std::string& text, const Contents& contents);
void appendAdjacency(std::string& text, const Contents& contents);
void appendOtherInformation(std::string& text, const Contents& contents);
void appendFaults(std::string& text, const Contents& contents);
void appendSettings(std::string& text, const Contents& contents);
void appendSettingsByObject(std::string& text, const Contents& contents);
void appendThreads(std::string& text, const Contents& contents);
void appendMaps(std::string& text, const Contents& contents);

/// Ends a section with an empty line, unless there is one.
void appendGap(std::string& text);

/// A title behind an empty line, and a rule of the same length under it.
void appendTitle(std::string& text, std::string_view title, char underline);

/// The name of an interface's periodicity as it stands behind something else, with a blank in front.
std::string periodicityName(const Interface& interface);

/// The location string, or "DEFAULT".
std::string placeOf(const Volume& volume);
std::string placeOf(const Boundary& boundary);

/// The cells of a bundle in a table: index, thread id, type, domains and zones.
std::vector<std::string> bundleCells(const ThreadBundle& bundle);

/// The settings made so far, without nulls: those of a volume and of its internal faces, those of the
/// patches of a boundary, that of an interface.
std::vector<const Settings*> presentSettings(const Volume& volume);
std::vector<const Settings*> presentSettings(const Boundary& boundary);
std::vector<const Settings*> presentSettings(const Interface& interface);

} // namespace physics
