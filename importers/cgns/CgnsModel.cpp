#include "importers/cgns/CgnsModel.h"

#include "importers/RegionIds.h"
#include "importers/cgns/Coverage.h"
#include "importers/cgns/Seams.h"
#include "importers/cgns/ZoneNumbers.h"
#include "importers/cgns/ZoneSurface.h"
#include "support/InQuotes.h"
#include "support/InWords.h"

#include <array>
#include <cmath>
#include <map>
#include <optional>
#include <utility>

namespace gtm::bundled {

namespace {

using support::inQuotes;
using support::inWords;
using Patch = CgnsDescription::Patch;
using Selection = CgnsDescription::Selection;
using Zone = CgnsDescription::Zone;

bool areOpposite(const std::array<double, 3>& one, const std::array<double, 3>& other)
{
    constexpr double tolerance = 1e-4; // of single precision, and then some
    double difference = 0;
    double size = 0;
    for (std::size_t i = 0; i < one.size(); ++i) {
        difference += std::abs(one[i] + other[i]);
        size += std::abs(one[i]) + std::abs(other[i]);
    }
    return difference <= tolerance * size;
}

/// "the translation (0, 0, 1)".
std::string inWords(const CgnsDescription::Periodicity& how)
{
    constexpr std::array<double, 3> zero = {};
    const std::string translation = "the translation " + inWords(how.translation);
    if (how.angle == zero) {
        return translation;
    }
    return "the angles " + inWords(how.angle) + " in radians about axes through " + inWords(how.centre) +
           (how.translation == zero ? "" : " and then " + translation);
}

class ModelMaker {
public:
    ModelMaker(const CgnsDescription& description, const CgnsOptions& options);
    CgnsResult make();

private:
    /// What is worked out about a zone.
    struct ZoneState {
        std::string id; ///< begins the ids of its faces
        std::string body;
        std::unique_ptr<ZoneSurface> surface; ///< null when it is not known
        std::optional<Coverage> coverage;
    };

    void reserveNumbers();
    void reserveNumber(std::optional<std::int32_t> ordinal, const std::string& what,
                       std::map<std::int32_t, std::string>& owners);
    void nameZones();
    void addBodies();
    void addPatch(PatchPlace place);
    void addCondition(PatchPlace place, const std::string& id);
    void addConnectivity(PatchPlace place, const std::string& id);
    void addOneSided(PatchPlace place, const std::string& id);
    void addPeriodic(PatchPlace place, PatchPlace answer, const std::string& id);
    void doubtPeriodicity(PatchPlace place, PatchPlace answer);
    void addUncovered(const Zone& zone, ZoneState& state);
    void addFace(const std::string& id, std::optional<std::int32_t> ordinal, std::size_t zone,
                 std::optional<std::size_t> otherZone = std::nullopt,
                 std::optional<std::int32_t> otherOrdinal = std::nullopt);
    ZoneSurface::CellFaces cover(std::size_t zone, const Selection& selection, const std::string& place,
                                 const std::string& name);
    void compareSides(const std::string& place, const ZoneSurface::CellFaces& one, const ZoneSurface::CellFaces& other);
    std::string takeFaceId(PatchPlace place);

    const Patch& patchAt(PatchPlace place) const { return m_description.zones[place.zone].patches[place.patch]; }
    std::string textOf(PatchPlace place) const;
    void note(std::string sentence) { m_result.notes.push_back(std::move(sentence)); }

    const CgnsDescription& m_description;
    const CgnsOptions& m_options;
    Seams m_seams;
    CgnsResult m_result;
    RegionIds m_names;
    ZoneNumbers m_numbers;
    TopologyBuilder m_builder;
    std::vector<ZoneState> m_zones;
    std::map<PatchPlace, std::string> m_faces;
};

ModelMaker::ModelMaker(const CgnsDescription& description, const CgnsOptions& options)
    : m_description(description),
      m_options(options),
      m_seams(description),
      m_result{nullptr, {}, {}, {}, {}, description.notes},
      m_names(m_result.notes)
{}

CgnsResult ModelMaker::make()
{
    reserveNumbers();
    nameZones();
    addBodies();
    for (std::size_t zone = 0; zone < m_zones.size(); ++zone) {
        for (std::size_t patch = 0; patch < m_description.zones[zone].patches.size(); ++patch) {
            addPatch({zone, patch});
        }
    }
    for (std::size_t zone = 0; zone < m_zones.size(); ++zone) {
        addUncovered(m_description.zones[zone], m_zones[zone]);
    }
    m_result.renamed.insert(m_names.renamed().begin(), m_names.renamed().end());
    m_result.model = m_builder.build();
    return std::move(m_result);
}

void ModelMaker::reserveNumbers()
{
    std::map<std::int32_t, std::string> zones;
    std::map<std::int32_t, std::string> patches;
    for (std::size_t i = 0; i < m_description.zones.size(); ++i) {
        const Zone& zone = m_description.zones[i];
        reserveNumber(zone.ordinal, "Zone " + inQuotes(zone.name), zones);
        for (std::size_t j = 0; j < zone.patches.size(); ++j) {
            const std::optional<PatchPlace> answer = m_seams.answerTo({i, j});
            const std::optional<std::int32_t> ordinal = zone.patches[j].ordinal;
            // The two sides of one face may well have one number.
            const bool isRepeated = answer && *answer < PatchPlace{i, j} && patchAt(*answer).ordinal == ordinal;
            reserveNumber(isRepeated ? std::nullopt : ordinal, textOf({i, j}), patches);
        }
    }
}

void ModelMaker::reserveNumber(std::optional<std::int32_t> ordinal, const std::string& what,
                               std::map<std::int32_t, std::string>& owners)
{
    m_numbers.reserve(ordinal);
    if (!ordinal) {
        return;
    }
    const auto [owner, isNew] = owners.emplace(*ordinal, what);
    if (!isNew) {
        note(what + " has the same ordinal as " + owner->second + ", " + std::to_string(*ordinal) +
             "; both keep it as the number of their solver zone.");
    }
}

void ModelMaker::nameZones()
{
    RegionIds zoneNames(m_result.notes);
    for (std::size_t i = 0; i < m_description.zones.size(); ++i) {
        const Zone& zone = m_description.zones[i];
        const std::string name = RegionIds::asId(zone.name);
        ZoneState state;
        state.id = zoneNames.take("Zone", zone.name, name.empty() ? "zone-" + std::to_string(i + 1) : name);
        std::string obstacle;
        state.surface = makeSurface(zone, obstacle);
        if (state.surface) {
            state.coverage.emplace(state.surface->size());
        } else {
            note("Zone " + inQuotes(zone.name) + " " + obstacle + "; its coverage is not known.");
        }
        m_zones.push_back(std::move(state));
    }
}

void ModelMaker::addBodies()
{
    struct Body {
        std::string id;
        std::vector<std::int32_t> numbers;
    };
    std::vector<Body> bodies;
    std::map<std::string, std::size_t> families;
    for (std::size_t i = 0; i < m_zones.size(); ++i) {
        const Zone& zone = m_description.zones[i];
        const std::string family = m_options.bodiesAreFamilies ? RegionIds::asId(zone.family) : std::string();
        const auto known = family.empty() ? families.end() : families.find(zone.family);
        std::size_t body = bodies.size();
        if (known != families.end()) {
            body = known->second;
        } else {
            bodies.push_back({family.empty() ? m_names.take("Zone", m_zones[i].id, m_zones[i].id)
                                             : m_names.take("Family", zone.family, family),
                              {}});
            if (!family.empty()) {
                families.emplace(zone.family, body);
            } else if (bodies[body].id != zone.name) {
                m_result.renamed.emplace(bodies[body].id, zone.name);
            }
        }
        bodies[body].numbers.push_back(m_numbers.take(zone.ordinal));
        m_zones[i].body = bodies[body].id;
        m_result.zones.push_back({m_zones[i].body, zone.name, zone.family});
    }
    for (const Body& body : bodies) {
        m_builder.addBody(body.id, {}, body.numbers);
    }
}

void ModelMaker::addPatch(PatchPlace place)
{
    const std::optional<PatchPlace> answer = m_seams.answerTo(place);
    if (answer && m_faces.count(*answer) != 0) {
        return;
    }
    const std::string id = takeFaceId(place);
    m_faces.emplace(place, id);
    if (patchAt(place).kind == Patch::Kind::Condition) {
        addCondition(place, id);
    } else if (answer && (patchAt(place).periodicity || patchAt(*answer).periodicity)) {
        addPeriodic(place, *answer, id);
    } else if (answer) {
        addConnectivity(place, id);
    } else {
        addOneSided(place, id);
    }
}

void ModelMaker::addCondition(PatchPlace place, const std::string& id)
{
    const Patch& patch = patchAt(place);
    const ZoneSurface::CellFaces faces = cover(place.zone, patch.selection, textOf(place), patch.name);
    const bool isInside = faces.inner > 0 && faces.surface.empty();
    if (isInside) {
        note(textOf(place) + " lies inside the zone, with " + std::to_string(faces.inner) +
             " cell faces; both sides of its face belong to the same body.");
    } else if (faces.inner > 0) {
        note(textOf(place) + " has " + std::to_string(faces.inner) + " cell faces inside the zone besides " +
             std::to_string(faces.surface.size()) + " on its surface; it is taken to lie on the surface.");
    }
    addFace(id, patch.ordinal, place.zone, isInside ? std::optional(place.zone) : std::nullopt);
    m_result.conditions.push_back({id, patch.type, patch.family, patch.name});
}

void ModelMaker::addConnectivity(PatchPlace place, const std::string& id)
{
    const PatchPlace answer = *m_seams.answerTo(place);
    const ZoneSurface::CellFaces one = cover(place.zone, patchAt(place).selection, textOf(place), patchAt(place).name);
    const ZoneSurface::CellFaces other =
        cover(answer.zone, patchAt(answer).selection, textOf(answer), patchAt(answer).name);
    if (patchAt(place).kind == Patch::Kind::OneToOne) {
        compareSides(textOf(place), one, other);
    }
    addFace(id, patchAt(place).ordinal, place.zone, answer.zone, patchAt(answer).ordinal);
}

void ModelMaker::addPeriodic(PatchPlace place, PatchPlace answer, const std::string& id)
{
    const std::string otherId = takeFaceId(answer);
    m_faces.emplace(answer, otherId);
    const ZoneSurface::CellFaces one = cover(place.zone, patchAt(place).selection, textOf(place), patchAt(place).name);
    const ZoneSurface::CellFaces other =
        cover(answer.zone, patchAt(answer).selection, textOf(answer), patchAt(answer).name);
    if (patchAt(place).kind == Patch::Kind::OneToOne) {
        compareSides(textOf(place), one, other);
    }
    addFace(id, patchAt(place).ordinal, place.zone);
    addFace(otherId, patchAt(answer).ordinal, answer.zone);

    const bool turned = !patchAt(place).periodicity;
    const CgnsDescription::Periodicity& how = *patchAt(turned ? answer : place).periodicity;
    const bool rotates = how.angle != std::array<double, 3>{};
    const std::string& first = turned ? otherId : id;
    const std::string& second = turned ? id : otherId;
    m_result.periodics.push_back({patchAt(place).name, first, second,
                                  rotates ? CgnsPeriodic::Kind::Rotation : CgnsPeriodic::Kind::Translation, how.centre,
                                  how.angle, how.translation});
    note("The file maps the face " + inQuotes(first) + " onto " + inQuotes(second) + " by " + inWords(how) +
         "; only a periodic interface of a case can say so.");
    doubtPeriodicity(place, answer);
}

/// What leads there and what leads back must undo each other.
void ModelMaker::doubtPeriodicity(PatchPlace place, PatchPlace answer)
{
    const std::optional<CgnsDescription::Periodicity>& there = patchAt(place).periodicity;
    const std::optional<CgnsDescription::Periodicity>& back = patchAt(answer).periodicity;
    if (!there || !back) {
        note("Only " + std::string(there ? "the first" : "the second") + " of " + textOf(place) + " and " +
             textOf(answer) + " is periodic; what it says is taken.");
        return;
    }
    const bool rotates = there->angle != std::array<double, 3>{};
    const bool isOpposite = rotates ? areOpposite(there->angle, back->angle)
                                    : back->angle == there->angle && areOpposite(there->translation, back->translation);
    if (!isOpposite) {
        note(textOf(place) + " and " + textOf(answer) +
             " are periodic, but do not undo each other; what the first says is taken.");
    }
}

void ModelMaker::addOneSided(PatchPlace place, const std::string& id)
{
    const Patch& patch = patchAt(place);
    const std::optional<std::size_t> donor = m_seams.findZone(patch.donorZone);
    const ZoneSurface::CellFaces own = cover(place.zone, patch.selection, textOf(place), patch.name);
    if (donor && patch.kind == Patch::Kind::OneToOne && !patch.periodicity && !patch.donor.values.empty()) {
        compareSides(textOf(place), own, cover(*donor, patch.donor, textOf(place) + ", at its donor,", patch.name));
        note(textOf(place) + " is not answered by zone " + inQuotes(patch.donorZone) +
             "; its face has both sides all the same.");
        addFace(id, patch.ordinal, place.zone, donor);
        return;
    }
    note(textOf(place) +
         (donor ? " is not answered by exactly one connectivity of zone " + inQuotes(patch.donorZone)
                : " leads to zone " + inQuotes(patch.donorZone) + ", which is not in the file") +
         "; its face has one side only.");
    addFace(id, patch.ordinal, place.zone);
}

void ModelMaker::addUncovered(const Zone& zone, ZoneState& state)
{
    if (!state.coverage) {
        return;
    }
    for (std::string& sentence : state.coverage->overlaps(zone.name)) {
        note(std::move(sentence));
    }
    const std::size_t count = state.coverage->noOfUncovered();
    if (count == 0) {
        return;
    }
    const std::string id = m_names.take("Face", {}, state.id + "/uncovered");
    note("Zone " + inQuotes(zone.name) + ": " + std::to_string(count) + " of the " +
         std::to_string(state.coverage->size()) +
         " cell faces of its surface are in no condition and no connectivity; they are the face " + inQuotes(id) + ".");
    addFace(id, std::nullopt, static_cast<std::size_t>(&state - m_zones.data()));
}

void ModelMaker::addFace(const std::string& id, std::optional<std::int32_t> ordinal, std::size_t zone,
                         std::optional<std::size_t> otherZone, std::optional<std::int32_t> otherOrdinal)
{
    const std::int32_t number = m_numbers.take(ordinal ? ordinal : otherOrdinal);
    const TopologyBuilder::Side first{m_zones[zone].body, {}, {{number, 0}}};
    if (otherZone) {
        const std::int32_t otherNumber = otherOrdinal.value_or(number);
        m_builder.addFace(id, first, TopologyBuilder::Side{m_zones[*otherZone].body, {}, {{otherNumber, 1}}});
    } else {
        m_builder.addFace(id, first);
    }
}

ZoneSurface::CellFaces ModelMaker::cover(std::size_t zone, const Selection& selection, const std::string& place,
                                         const std::string& name)
{
    ZoneState& state = m_zones[zone];
    if (!state.surface) {
        return {{}, 0, false};
    }
    ZoneSurface::CellFaces faces =
        selection.values.empty() ? ZoneSurface::CellFaces{{}, 0, false} : state.surface->cellFaces(selection, place);
    state.coverage->add(name, faces.surface);
    if (selection.location == Selection::Location::Cell && faces.isKnown) {
        note(place + " names cells; its face is made of the " + std::to_string(faces.surface.size()) +
             " cell faces at which they reach the surface.");
    }
    if (!faces.isKnown) {
        note(place + " names " + (selection.values.empty() ? "no points" : "points that are not cell faces") +
             "; only " + std::to_string(faces.surface.size()) + " cell faces of it are known.");
    } else if (faces.surface.empty() && faces.inner == 0) {
        note(place + " has no cell face.");
    }
    return faces;
}

void ModelMaker::compareSides(const std::string& place, const ZoneSurface::CellFaces& one,
                              const ZoneSurface::CellFaces& other)
{
    const std::size_t here = one.surface.size() + one.inner;
    const std::size_t there = other.surface.size() + other.inner;
    if (one.isKnown && other.isKnown && here != there) {
        note(place + " has " + std::to_string(here) + " cell faces on one side and " + std::to_string(there) +
             " on the other, though it is one to one.");
    }
}

std::string ModelMaker::takeFaceId(PatchPlace place)
{
    const std::string& zone = m_zones[place.zone].id;
    const std::string& said = patchAt(place).name;
    const std::string name = RegionIds::asId(said);
    return m_names.take("Face", zone + "/" + said,
                        zone + "/" + (name.empty() ? "face-" + std::to_string(place.patch + 1) : name));
}

std::string ModelMaker::textOf(PatchPlace place) const
{
    const Patch& patch = patchAt(place);
    return std::string(patch.kind == Patch::Kind::Condition ? "Condition" : "Connectivity") + " " +
           inQuotes(patch.name) + " of zone " + inQuotes(m_description.zones[place.zone].name);
}

} // namespace

CgnsResult buildModel(const CgnsDescription& description, const CgnsOptions& options)
{
    return ModelMaker(description, options).make();
}

} // namespace gtm::bundled
