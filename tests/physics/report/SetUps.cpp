#include "tests/physics/report/SetUps.h"

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "tests/physics/PhysicsCase.h"

#include <stdexcept>

namespace physics::setups {
namespace {

/// Replaces a piece of a text that occurs exactly once.
void replaceOnce(std::string& text, const std::string& piece, const std::string& replacement)
{
    const std::size_t start = text.find(piece);
    if (start == std::string::npos || text.find(piece, start + 1) != std::string::npos)
        throw std::logic_error("not exactly once: " + piece + "in: " + text);
    text.replace(start, piece.size(), replacement);
}

/// The text of the set-up `readBack` with settings 10 and 11 of the patches 4 and 5 in their interface, which
/// nothing but a text makes.
std::string withSettingsInTheInterface(std::string text)
{
    replaceOnce(text, "\n9 1 2 3 4 5 6 7 8 9\n", "\n11 1 2 3 4 5 6 7 8 9 10 11\n");
    replaceOnce(text, "\n8 1 1 2 2 3 3 4 6\n0\n0\n", "\n8 1 1 2 2 3 3 4 6\n0\n4 4 10 5 11\n");
    replaceOnce(text, "\n9\n0 1 0 1 1 -1 1 -1\n", "\n11\n0 1 0 1 1 -1 1 -1\n");
    return text + "0 10 2 1 1 -1 4 -1\n0\n"
                  "0 11 2 1 1 -1 5 -1\n0\n";
}

/// Adds volumes of the given bodies, from one face to the next like beads on a string.
struct Chain {
    Chain(SetUp& setUp, const std::vector<std::string>& names)
    {
        gtm::Body* previous = nullptr;
        for (const std::string& name : names) {
            gtm::Body* body = setUp.world.body(name + "-body");
            setUp.world.face(name + "-in", previous != nullptr ? previous : body, previous != nullptr ? body : nullptr);
            setUp.world.face(name + "-side", body);
            previous = body;
        }
    }
};

} // namespace

Physics& SetUp::begin()
{
    for (int* counter : {&modelIdCounter(), &volumeIdCounter(), &boundaryIdCounter(), &interfaceIdCounter(),
                         &patchIdCounter(), &settingsIdCounter()})
        *counter = 0;
    physics = std::make_unique<Physics>(world.model(), false);
    return *physics;
}

Made empty()
{
    Made made = std::make_unique<SetUp>("empty");
    made->begin();
    return made;
}

Made defaults()
{
    Made made = std::make_unique<SetUp>("defaults");
    scripted::World& world = made->world;
    gtm::Part* part = world.part("engine");
    gtm::Body* hot = world.body("hot", part);
    gtm::Body* cold = world.body("cold", part);
    const auto inlet = world.face("inlet", hot);
    world.face("outlet", hot);
    const auto contact = world.face("contact", hot, cold);
    world.face("outer", cold);
    world.zones(hot, {21});
    world.zones(cold, {22, 23});
    world.sideZones(inlet.first, {{31, 0}});
    world.sideZones(contact.first, {{32, 0}});

    Physics& physics = made->begin();
    Volume* block = physics.createVolume("block", std::string("cold"), VolumeType::Solid);
    block->createBoundary("sides", std::string("outer, contact@cold"));
    block->createDefaultBoundary("rest"); // empty: the sides have everything
    Volume* coolant = physics.createDefaultVolume("coolant", VolumeType::Fluid);
    Boundary* in = coolant->createBoundary("inlet", std::string("inlet"), BoundaryType::VelocityInlet);
    coolant->createDefaultBoundary("walls");

    coolant->settings()->createThreadBundle(0, ThreadType::Fluid, 11, {1});
    in->nonOverlappingBoundarySettings()->createThreadBundle(0, ThreadType::VelocityInlet, 12, {1});
    return made;
}

Made periodic()
{
    Made made = std::make_unique<SetUp>("periodic");
    const Chain chain(*made, {"first", "second", "third"});
    Physics& physics = made->begin();
    Volume* first = physics.createVolume("first", std::string("first-body"), VolumeType::Fluid);
    Volume* second = physics.createVolume("second", std::string("second-body"), VolumeType::Fluid);
    Volume* third = physics.createVolume("third", std::string("third-body"), VolumeType::Porous);
    Boundary* firstIn = first->createBoundary("in", std::string("first-in"), BoundaryType::VelocityInlet);
    Boundary* firstOut = first->createBoundary("out", std::string("second-in@first-body"));
    Boundary* secondIn = second->createBoundary("in", std::string("second-in@second-body"));
    Boundary* secondOut = second->createBoundary("out", std::string("third-in@second-body"));
    Boundary* thirdIn = third->createBoundary("in", std::string("third-in@third-body"));
    Boundary* thirdSide = third->createBoundary("side", std::string("third-side"), BoundaryType::Symmetry);

    Interface* plain = physics.createInterface("plain", firstOut, secondIn, InterfaceType::Interior);
    plain->setMeshConnectivity(MeshConnectivity::NonConformal);
    plain->setIsMapped(true);
    plain->settings()->createThreadBundle(0, ThreadType::Interface, 5, {1});
    Interface* shifted = physics.createTranslationallyPeriodicInterface("shifted", firstIn, thirdSide, {0.25, 0, -1e-7},
                                                                        InterfaceType::Wall);
    shifted->setIsStatic(true);
    shifted->settings();
    Interface* turned = physics.createRotationallyPeriodicInterface("turned", secondOut, thirdIn, 22.5, {0, 1.0 / 3, 0},
                                                                    {0, 0, 1}, InterfaceType::PorousJump);
    turned->setIsMeshValid(true);
    return made;
}

Made models()
{
    Made made = std::make_unique<SetUp>("models");
    scripted::World& world = made->world;
    gtm::Body* upper = world.body("upper");
    gtm::Body* lower = world.body("lower");
    gtm::Body* solid = world.body("solid");
    const auto baffle = world.face("baffle", upper, lower); // inside the fluid
    world.face("upper-wall", upper, solid);
    world.face("lower-wall", lower, solid);
    world.face("roof", solid);
    world.zones(upper, {1});
    world.zones(lower, {2});
    world.zones(solid, {3});
    world.sideZones(baffle.first, {{7, 0}});
    world.sideZones(baffle.second, {{7, 1}});

    Physics& physics = made->begin();
    Model* flow = physics.createModel();
    Model* heat = physics.createModel();
    flow->addDomain(2, DomainType::Phase, "Water Vapour");
    flow->addDomain(3, DomainType::Phase, "Air");
    flow->addDomain(10, DomainType::Interaction, "Air-Vapour");
    flow->addDomain(11, DomainType::Unset, "");
    heat->removeDomain(1);

    Volume* fluid = physics.createVolume("fluid", std::string("upper, lower"), VolumeType::Fluid, flow);
    Volume* metal = physics.createVolume("metal", std::string("solid"), VolumeType::Solid, heat);
    Boundary* wet = fluid->createBoundary("wet", std::string("upper-wall@upper, lower-wall@lower"));
    Boundary* above = metal->createBoundary("above", std::string("upper-wall@solid"));
    Boundary* below = metal->createBoundary("below", std::string("lower-wall@solid"));
    metal->createBoundary("roof", std::string("roof"), BoundaryType::Symmetry);
    Interface* top = physics.createInterface("top", wet, above, InterfaceType::Wall, flow);
    physics.createInterface("bottom", wet, below, InterfaceType::Wall, heat);
    wet->addTag(BoundaryTag::Interface);
    wet->setShellModel(heat);
    wet->setShellType(ShellType::HeatConduction);

    Settings* ofFluid = fluid->settings();
    ofFluid->createThreadBundle(0, ThreadType::Fluid, 100, {1, 2, 3});
    ofFluid->createThreadBundle(1, ThreadType::Fluid, 101, {10})->setZoneIds({41, -42});
    fluid->internalSettings()->createThreadBundle(0, ThreadType::Interior, 102, {1});
    metal->settings()->createThreadBundle(0, ThreadType::Solid, 103, {});
    wet->boundarySettings(nullptr)->createThreadBundle(0, ThreadType::Wall, 104, {1});
    wet->boundarySettings(top)->createThreadBundle(0, ThreadType::Wall, 105, {1})->setZoneIds({43});
    wet->shellSettings(top)->createThreadBundle(0, ThreadType::Wall, 106, {1});
    above->boundarySettings(top);
    top->settings()->createThreadBundle(0, ThreadType::Interface, 107, {1, 2});
    return made;
}

Made inactive()
{
    Made made = std::make_unique<SetUp>("inactive");
    scripted::World& world = made->world;
    gtm::Part* gone = world.part("gone");
    gtm::Part* kept = world.part("kept");
    world.part("bare"); // without bodies, so never masked
    gtm::Body* north = world.body("north", gone);
    gtm::Body* south = world.body("south", gone);
    gtm::Body* east = world.body("east", kept);
    gtm::Body* west = world.body("west", kept);
    world.body("spare", kept);
    world.face("pole", north, south);
    world.face("dawn", east);
    world.face("dusk", west);
    world.face("noon", east, west);

    Physics& physics = made->begin();
    physics.setEnforceRestrictions(true);
    Volume* first = physics.createVolume("morning", std::string("east"), VolumeType::Fluid);
    Volume* second = physics.createVolume("evening", std::string("west"), VolumeType::Solid);
    Volume* third = physics.createVolume("arctic", std::string("north"), VolumeType::Fluid);
    Boundary* dawn = first->createBoundary("dawn", std::string("dawn"), BoundaryType::Outflow);
    Boundary* dusk = second->createBoundary("dusk", std::string("dusk"));
    physics.createInterface("day", dawn, dusk, InterfaceType::Wall);
    physics.deactivateVolumes({second, third});
    physics.deactivateVolumes({});
    physics.maskParts({gone});
    physics.maskBodies({west});
    return made;
}

Made faults()
{
    Made made = std::make_unique<SetUp>("faults");
    scripted::World& world = made->world;
    gtm::Body* one = world.body("one");
    gtm::Body* two = world.body("two");
    world.face("left", one);
    world.face("middle", one, two);
    world.face("right", two);
    world.judgeStates();

    Physics& physics = made->begin();
    Volume* both = physics.createVolume("both", std::string("one, two, three"), VolumeType::Fluid);
    Volume* again = physics.createVolume("again", std::string("two"), VolumeType::Solid);
    physics.createVolume("nothing", std::vector<gtm::Region*>{}, VolumeType::Unset);
    Boundary* ends = both->createBoundary("ends", std::string("left, right"), BoundaryType::Outflow);
    both->createBoundary("left", std::string("left, lost one, lost two"), BoundaryType::Fan);
    Boundary* wrong = again->createBoundary("wrong", std::string("right"), BoundaryType::VelocityInlet);
    again->createBoundary("tagged", std::string("middle@two"))->addTag(BoundaryTag::Interface);
    physics.createInterface("same", ends, ends, InterfaceType::Fan);
    physics.createInterface("mixed", ends, wrong, InterfaceType::Fan);
    scripted::answersOf(wrong->boundary()).overlappingBoundaries = {nullptr};
    return made;
}

Made longLists()
{
    Made made = std::make_unique<SetUp>("long-lists");
    scripted::World& world = made->world;
    gtm::Part* part = world.part("assembly");
    std::vector<gtm::Region*> bodies;
    std::string faces;
    for (int i = 1; i <= 24; ++i) {
        const std::string number = std::to_string(i);
        gtm::Body* body = world.body("body-" + number, part);
        world.zones(body, {1000 + i, 2000 + i});
        world.face("face-" + number, body);
        bodies.push_back(body);
        faces += (faces.empty() ? "face-" : ", face-") + number;
    }
    Physics& physics = made->begin();
    Volume* volume = physics.createVolume("many", bodies, VolumeType::Fluid);
    Boundary* skin = volume->createBoundary("skin", faces);
    Volume* solid = physics.createVolume("solid", std::string("body-1"), VolumeType::Solid);
    for (int i = 1; i <= 9; ++i)
        physics.createInterface("interface-" + std::to_string(i),
                                solid->createBoundary("boundary-" + std::to_string(i), "face-" + std::to_string(i)),
                                skin, InterfaceType::Wall);
    std::vector<int> domains;
    for (int domain = 1; domain <= 30; ++domain)
        domains.push_back(domain);
    volume->settings()->createThreadBundle(0, ThreadType::Fluid, 1, domains);
    volume->settings()->createThreadBundle(1, ThreadType::Fluid, 2, {});
    return made;
}

Made foreign()
{
    Made made = std::make_unique<SetUp>("foreign");
    scripted::World& world = made->world;
    gtm::Body* water = world.body("Wasser/K\u00f6rper 1");
    gtm::Body* steel = world.body("Stahl");
    const auto contact = world.face("Ber\u00fchrung", water, steel);
    world.face("\u5165\u53e3", water);

    Physics& physics = made->begin();
    physics.primaryModel()->addDomain(2, DomainType::Phase, "\u6c34 (fl\u00fcssig)");
    Volume* fluid = physics.createVolume("K\u00fchlmittel der h\u00f6chsten G\u00fcte",
                                         std::vector<gtm::Region*>{water}, VolumeType::Fluid);
    Volume* solid = physics.createVolume("steel block", std::vector<gtm::Region*>{steel}, VolumeType::Solid);
    fluid->createBoundary("\u5165\u53e3", std::string("\u5165\u53e3"), BoundaryType::MassFlowInlet);
    Boundary* wet = fluid->createBoundary("Wand, na\u00df", std::vector<gtm::Region*>{contact.first});
    Boundary* dry = solid->createBoundary("cooled side", std::vector<gtm::Region*>{contact.second});
    physics.createInterface("\u0393", wet, dry, InterfaceType::Wall)->settings();
    fluid->settings()->createThreadBundle(0, ThreadType::Fluid, -4, {1, 2})->setZoneIds({-7});
    return made;
}

Made leftBehind()
{
    Made made = std::make_unique<SetUp>("left-behind");
    const Chain chain(*made, {"near", "far"});
    Physics& physics = made->begin();
    Model* kept = physics.createModel();
    Model* lost = physics.createModel();
    Volume* near = physics.createVolume("near", std::string("near-body"), VolumeType::Fluid, kept);
    Volume* far = physics.createVolume("far", std::string("far-body"), VolumeType::Fluid, lost);
    Boundary* out = near->createBoundary("out", std::string("far-in@near-body"));
    Boundary* in = far->createBoundary("in", std::string("far-in@far-body"));
    physics.createInterface("open", out, in, InterfaceType::Interior, lost);
    made->ended =
        physics.createTranslationallyPeriodicInterface("closed", out, in, {1, 2, 3}, InterfaceType::Wall, kept);
    made->ended->settings();
    near->settings()->createThreadBundle(0, ThreadType::Fluid, 50, {1})->setThreadId(60);
    near->settings()->createThreadBundle(1, ThreadType::Fluid, 51, {1});
    far->settings();
    made->ended->destroy();
    lost->destroy();
    return made;
}

Made warnings()
{
    Made made = std::make_unique<SetUp>("warnings");
    scripted::World& world = made->world;
    gtm::Body* tank = world.body("tank");
    world.face("lid", tank);
    world.face("floor", tank);
    gtm::Body* spare = world.body("spare"); // in no part and without faces
    world.judgeStates();

    Physics& physics = made->begin();
    Volume* full = physics.createVolume("full", std::string("tank"), VolumeType::Fluid);
    full->createBoundary("lid", std::string("lid"))->addTag(BoundaryTag::Interface);
    full->createDefaultBoundary("rest");
    physics.maskBodies({spare});
    physics.createDefaultVolume("void", VolumeType::Porous)->createDefaultBoundary("edge");
    return made;
}

Made readBack()
{
    Made made = std::make_unique<SetUp>("read-back");
    scripted::World& world = made->world;
    gtm::Body* gas = world.body("gas");
    world.face("film", gas, world.body("plate"));
    world.face("vent", gas);
    world.zones(gas, {1});

    Physics& physics = made->begin();
    Model* flow = physics.createModel();
    Volume* fluid = physics.createVolume("gas", std::string("gas"), VolumeType::Fluid, flow);
    Volume* solid = physics.createVolume("plate", std::string("plate"), VolumeType::Solid, flow);
    Boundary* hot = fluid->createBoundary("hot", std::string("film@gas"));
    Boundary* cold = solid->createBoundary("cold", std::string("film@plate"));
    fluid->createBoundary("vent", std::string("vent"), BoundaryType::Outflow);
    Interface* contact = physics.createInterface("contact", hot, cold, InterfaceType::Wall, flow);
    hot->setShellModel(physics.createModel());
    hot->setShellType(ShellType::HeatConduction);
    hot->shellSettings(nullptr);
    hot->shellSettings(contact);
    hot->boundarySettings(contact);
    contact->settings();
    fluid->settings();
    solid->settings();

    physics.restore(withSettingsInTheInterface(physics.serialise()));

    physics.findSettingsById(10)->createThreadBundle(0, ThreadType::Interface, 21, {1})->setZoneIds({60});
    physics.findSettingsById(4)->createThreadBundle(0, ThreadType::Solid, 22, {1});
    // Thread 31 is found under the settings that had it first, which have no such bundle any more.
    physics.findSettingsById(8)->createThreadBundle(0, ThreadType::Fluid, 31, {1})->setThreadId(32);
    physics.findSettingsById(9)->createThreadBundle(0, ThreadType::Solid, 33, {1})->setThreadId(31);
    scripted::InteriorAnswers& plate = scripted::answersOf(physics.findVolumeById(2)->interior());
    plate.state = gtm::Interior::State::Inconsistent;
    plate.overlappingInteriors = {nullptr};
    scripted::answersOf(physics.findInterfaceById(1)->interface()).state =
        gtm::Interface::State::InconsistentSharedFaces;
    return made;
}

Made gaps()
{
    Made made = std::make_unique<SetUp>("gaps");
    scripted::World& world = made->world;
    gtm::Body* tank = world.body("tank");
    gtm::Body* pipe = world.body("pipe");
    const auto joint = world.face("joint", tank, pipe);
    const auto lid = world.face("lid", tank);
    world.face("end", pipe);

    Physics& physics = made->begin();
    Volume* vessel = physics.createVolume("vessel", std::string("tank"), VolumeType::Fluid);
    Volume* well = physics.createVolume("well", std::string("pipe"), VolumeType::Fluid);
    Boundary* out = vessel->createBoundary("out", std::string("joint@tank"));
    Boundary* in = well->createBoundary("in", std::string("joint@pipe"));
    Interface* passage = physics.createInterface("passage", out, in, InterfaceType::Interior);

    scripted::InteriorAnswers& ofVessel = scripted::answersOf(vessel->interior());
    ofVessel.hasNoLocation = true;
    ofVessel.bodies = {tank, nullptr};
    ofVessel.unusedFaceUses = {nullptr, lid.first};
    ofVessel.internalFaces = {nullptr};
    ofVessel.unusedInternalFaces = {nullptr, nullptr};
    scripted::BoundaryAnswers& ofOut = scripted::answersOf(out->boundary());
    ofOut.hasNoLocation = true;
    ofOut.faceUses = {joint.first, nullptr};
    scripted::answersOf(passage->interface()).state = gtm::Interface::State::MoreThanOneVolumePerSide;
    return made;
}

std::vector<Made (*)()> all()
{
    std::vector<Made (*)()> setUps = allWithObjects();
    setUps.push_back(empty);
    return setUps;
}

std::vector<Made (*)()> allWithObjects()
{
    return {defaults, periodic, models, inactive, faults, longLists, foreign, leftBehind, warnings, readBack, gaps};
}

} // namespace physics::setups
