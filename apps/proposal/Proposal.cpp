#include "apps/proposal/Proposal.h"

#include "apps/GeometryFile.h"
#include "apps/Joined.h"
#include "apps/proposal/BodyGroups.h"
#include "apps/proposal/FaceGroups.h"
#include "apps/proposal/NamesInCase.h"
#include "gtm/Body.h"
#include "locationmodel/LocationModel.h"
#include "physics/TypeManager.h"
#include "physics/TypeNames.h"
#include "support/InQuotes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <map>
#include <optional>
#include <utility>

namespace physics::apps {
namespace {

using gtm::bundled::CgnsPeriodic;
using gtm::support::inQuotes;

constexpr double degreesInRadian = 57.295779513082320877;

/// The axis about which alone a periodic pair turns, if its values are a rotation about one axis and no more.
std::optional<std::size_t> axisOf(const CgnsPeriodic& periodic)
{
    const auto isSomething = [](double value) { return value != 0; };
    const auto& angles = periodic.rotationAngle;
    const bool isPlain = std::count_if(angles.begin(), angles.end(), isSomething) == 1 &&
                         std::none_of(periodic.translation.begin(), periodic.translation.end(), isSomething);
    const auto axis = std::find_if(angles.begin(), angles.end(), isSomething);
    return isPlain ? std::optional(static_cast<std::size_t>(axis - angles.begin())) : std::nullopt;
}

/// An interface type of the same name as an internal boundary type.
std::optional<InterfaceType> asInterface(BoundaryType type)
{
    for (const InterfaceType candidate : enumerators<InterfaceType>()) {
        if (displayName(candidate) == displayName(type)) {
            return candidate;
        }
    }
    return std::nullopt;
}

class Proposer {
public:
    Proposer(const GeometryFile& geometry, Proposal& proposal)
        : m_geometry(geometry),
          m_volumes(groupBodies(geometry)),
          m_faces(groupFaces(geometry, m_volumes)),
          m_file(proposal.file),
          m_ledger(proposal.ledger),
          m_names(proposal.file.names)
    {}

    void propose();

private:
    void addVolume(const BodyGroup& group);
    void addOwn(const FaceGroup& group);
    void addShared(const SharedGroup& group);
    void addPeriodicSide(const PeriodicFace& face);
    void addPeriodic(const CgnsPeriodic& periodic);
    void addRest(std::size_t volume);
    void listRenamed();

    /// Adds a boundary and gives its full name.
    std::string addBoundary(std::size_t volume, const std::string& name, const std::vector<std::string>& faces,
                            BoundaryType type);
    void note(std::string inFile, std::string inCase, Fidelity fidelity, std::string_view remark);

    const GeometryFile& m_geometry;
    const std::vector<BodyGroup> m_volumes;
    const FaceGroups m_faces;
    CaseFile& m_file;
    std::vector<LedgerEntry>& m_ledger;
    NamesInCase m_names;
    const TypeManager m_types;
    std::map<std::string, std::string> m_periodicSides; ///< full names of boundaries by face
};

void Proposer::propose()
{
    for (const BodyGroup& group : m_volumes) {
        addVolume(group);
    }
    for (const FaceGroup& group : m_faces.own) {
        addOwn(group);
    }
    for (const SharedGroup& group : m_faces.shared) {
        addShared(group);
    }
    for (const PeriodicFace& face : m_faces.periodic) {
        addPeriodicSide(face);
    }
    for (const CgnsPeriodic& periodic : m_geometry.periodics) {
        addPeriodic(periodic);
    }
    for (std::size_t volume = 0; volume < m_volumes.size(); ++volume) {
        addRest(volume);
    }
    listRenamed();
}

void Proposer::note(std::string inFile, std::string inCase, Fidelity fidelity, std::string_view remark)
{
    m_ledger.push_back({std::move(inFile), std::move(inCase), fidelity, std::string(remark)});
}

void Proposer::addVolume(const BodyGroup& group)
{
    CaseFile::Volume volume;
    volume.name = m_names.take("volume", "", group.name, "volume");
    volume.type = group.mapping.type;
    std::vector<std::string> bodies;
    for (const gtm::Body* body : group.bodies) {
        bodies.push_back(body->id());
    }
    volume.location = std::move(bodies);
    note(group.inFile, "volume " + inQuotes(volume.name) + ", " + displayName(volume.type), group.mapping.fidelity,
         remarkOn(group.mapping));
    m_file.volumes.push_back(std::move(volume));
}

std::string Proposer::addBoundary(std::size_t volume, const std::string& name, const std::vector<std::string>& faces,
                                  BoundaryType type)
{
    CaseFile::Volume& owner = m_file.volumes[volume];
    CaseFile::Boundary boundary;
    boundary.name = m_names.take("boundary", owner.name + "::", name, "boundary");
    boundary.location = faces;
    boundary.type = type;
    owner.boundaries.push_back(std::move(boundary));
    return owner.name + "::" + owner.boundaries.back().name;
}

void Proposer::addOwn(const FaceGroup& group)
{
    const bool isUnknown = group.mapping.type == BoundaryType::Unset;
    BoundaryType type = isUnknown ? BoundaryType::Wall : group.mapping.type;
    Fidelity fidelity = group.mapping.fidelity;
    std::string remark = remarkOn(group.mapping) + (isUnknown ? "; a wall is assumed" : "");
    const VolumeType owner = m_file.volumes[group.volume].type;
    if (!m_types.isAllowedBoundaryType(owner, type)) {
        remark = "a " + displayName(owner) + " volume cannot have a " + displayName(type) + " boundary";
        type = BoundaryType::Wall;
        fidelity = Fidelity::NotPossible;
    } else if (m_types.isInternalBoundaryType(type) && !group.isInside) {
        remark = "a " + displayName(type) + " boundary needs a volume on both sides";
        type = BoundaryType::Wall;
        fidelity = Fidelity::NotPossible;
    }
    const std::string name = addBoundary(group.volume, group.name, group.faces, type);
    note(group.inFile, "boundary " + inQuotes(name) + ", " + displayName(type), fidelity, remark);
}

void Proposer::addShared(const SharedGroup& group)
{
    const auto [first, second] = group.volumes;
    const auto nameOf = [&](std::size_t volume) { return m_file.volumes[volume].name; };
    const auto typeOf = [&](std::size_t volume) { return m_file.volumes[volume].type; };
    const auto side = [&](std::size_t volume, std::size_t other) {
        const std::string name = group.name.empty() ? "to " + nameOf(other) : group.name;
        return addBoundary(volume, name, group.faces, BoundaryType::Wall);
    };
    CaseFile::Interface interface;
    interface.sides[0].boundary = side(first, second);
    interface.sides[1].boundary = side(second, first);
    const bool isSolid = typeOf(first) == VolumeType::Solid || typeOf(second) == VolumeType::Solid;
    interface.type = isSolid ? InterfaceType::Wall : InterfaceType::Interior;
    if (const BoundaryMapping* said = boundaryMappingOfName(group.name)) {
        const auto wanted = asInterface(said->type);
        const auto fits = [&](std::size_t volume) {
            return m_types.isAllowedBoundaryType(*wanted, typeOf(volume), BoundaryType::Wall);
        };
        interface.type = wanted && fits(first) && fits(second) ? *wanted : interface.type;
    }
    const std::string plain = nameOf(first) + " to " + nameOf(second);
    interface.name = m_names.take("interface", "", group.name, plain);
    const std::string what =
        group.name.empty() ? counted(group.faces.size(), "shared face") : "shared face " + inQuotes(group.name);
    const bool isAssumed = m_volumes[first].mapping.said.empty() || m_volumes[second].mapping.said.empty();
    note(what + " of " + inQuotes(nameOf(first)) + " and " + inQuotes(nameOf(second)),
         "interface " + inQuotes(interface.name) + ", " + displayName(interface.type),
         isAssumed ? Fidelity::Approximate : Fidelity::Exact,
         isAssumed ? "follows from what is assumed to fill the volumes" : "");
    m_file.interfaces.push_back(std::move(interface));
}

void Proposer::addPeriodicSide(const PeriodicFace& face)
{
    m_periodicSides.emplace(face.id, addBoundary(face.volume, face.name, {face.id}, BoundaryType::Wall));
}

void Proposer::addPeriodic(const CgnsPeriodic& periodic)
{
    CaseFile::Interface interface;
    interface.sides[0].boundary = m_periodicSides.at(periodic.firstFace);
    interface.sides[1].boundary = m_periodicSides.at(periodic.secondFace);
    interface.type = InterfaceType::Interior;
    const std::string what = "periodic faces " + inQuotes(m_geometry.nameOf(periodic.firstFace)) + " and " +
                             inQuotes(m_geometry.nameOf(periodic.secondFace));
    if (periodic.kind == CgnsPeriodic::Kind::Translation) {
        interface.translation = periodic.translation;
    } else if (const auto axis = axisOf(periodic)) {
        CaseFile::Rotation rotation;
        rotation.angle = periodic.rotationAngle[*axis] * degreesInRadian;
        rotation.origin = periodic.rotationCentre;
        rotation.direction[*axis] = 1;
        interface.rotation = rotation;
    } else {
        note(what,
             "boundaries " + inQuotes(interface.sides[0].boundary) + " and " + inQuotes(interface.sides[1].boundary) +
                 ", Wall",
             Fidelity::NotPossible, "a turn about several axes, or with a shift, is no periodicity of ours");
        return;
    }
    interface.name = m_names.take("interface", "", periodic.name, "periodic");
    note(what,
         "interface " + inQuotes(interface.name) + ", Interior, " +
             (interface.translation ? "translation" : "rotation"),
         Fidelity::Exact, interface.rotation ? "the angle in degrees" : "");
    m_file.interfaces.push_back(std::move(interface));
}

void Proposer::addRest(std::size_t volume)
{
    CaseFile::Volume& owner = m_file.volumes[volume];
    if (const std::size_t inside = m_faces.noOfInside[volume]; inside > 0) {
        note(counted(inside, "face") + " inside " + inQuotes(owner.name), "nothing; the volume goes through",
             Fidelity::Exact, "");
    }
    const std::size_t unnamed = m_faces.noOfUnnamed[volume];
    if (unnamed == 0) {
        return;
    }
    CaseFile::Boundary boundary;
    boundary.name = m_names.take("boundary", owner.name + "::", "", "rest");
    boundary.type = BoundaryType::Wall;
    note(counted(unnamed, "face") + " of " + inQuotes(owner.name) + " without a name",
         "boundary " + inQuotes(owner.name + "::" + boundary.name) + ", Wall", Fidelity::Approximate,
         "nothing says what they are; walls are assumed");
    owner.boundaries.push_back(std::move(boundary));
}

/// Ids that are not as in the file stand in the locations, so they are listed with the names.
void Proposer::listRenamed()
{
    for (const auto& [id, said] : m_geometry.renamed) {
        m_file.names.push_back({"region", id, said});
    }
    for (const CaseFile::NameInFile& name : m_file.names) {
        note("name " + inQuotes(name.inFile), name.of + " " + inQuotes(name.name), Fidelity::Exact,
             "the case keeps the name of the file beside it");
    }
}

} // namespace

Proposal propose(const GeometryFile& geometry)
{
    Proposal proposal;
    Proposer(geometry, proposal).propose();
    return proposal;
}

} // namespace physics::apps
