#include "tests/physics/saved/KeptSetUps.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"

namespace physics {
namespace {

using Regions = std::vector<gtm::Region*>;

void empty(Physics& /*physics*/, const Geometry& /*geometry*/) {}

void defaultVolume(Physics& physics, const Geometry& /*geometry*/)
{
    Volume* block = physics.createVolume("block", std::string("right"), VolumeType::Solid);
    block->createDefaultBoundary("block surface", BoundaryType::Wall);
    Volume* rest = physics.createDefaultVolume("everything else", VolumeType::Fluid);
    rest->createBoundary("in", std::string("inlet"), BoundaryType::VelocityInlet);
    rest->createDefaultBoundary("walls", BoundaryType::Wall);
}

void regionLists(Physics& physics, const Geometry& geometry)
{
    Volume* pair =
        physics.createVolume("pair", Regions{geometry.region("left"), geometry.region("far side")}, VolumeType::Porous);
    pair->createBoundary("ends", Regions{geometry.region("inlet@left"), geometry.region("outer wall@far side")},
                         BoundaryType::PressureOutlet);
    physics.createVolume("nowhere", Regions{}, VolumeType::Solid)
        ->createBoundary("nothing", Regions{}, BoundaryType::Wall);
    physics.createVolume("unsaid", std::string(), VolumeType::Unset)
        ->createBoundary("unsaid too", std::string(), BoundaryType::Unset);
}

void masks(Physics& physics, const Geometry& geometry)
{
    physics.createVolume("masked away", std::string("right"), VolumeType::Fluid);
    physics.createVolume("in sight", std::string("left"), VolumeType::Fluid);
    physics.maskBodies({geometry.body("far side"), geometry.body("right")});
}

void groups(Physics& physics, const Geometry& /*geometry*/)
{
    Volume* left = physics.createVolume("left", std::string("left"), VolumeType::Fluid);
    Volume* right = physics.createVolume("right", std::string("right"), VolumeType::Fluid);
    Volume* loose = physics.createVolume("loose", std::string("loose"), VolumeType::Fluid);
    Volume* ended = physics.createVolume("ended", std::string("far side"), VolumeType::Fluid);
    physics.deactivateVolumes({loose});
    physics.deactivateVolumes({right, ended, left});
    physics.deactivateVolumes({});
    ended->destroy();
}

void periodicInterfaces(Physics& physics, const Geometry& /*geometry*/)
{
    Volume* left = physics.createVolume("left", std::string("left"), VolumeType::Fluid);
    Volume* right = physics.createVolume("right", std::string("right"), VolumeType::Fluid);
    Boundary* in = left->createBoundary("in", std::string("inlet@left"), BoundaryType::Wall);
    Boundary* from = left->createBoundary("from", std::string("middle@left"), BoundaryType::Wall);
    Boundary* to = right->createBoundary("to", std::string("middle@right"), BoundaryType::Wall);
    Boundary* out = right->createBoundary("out", std::string("outlet@right"), BoundaryType::Wall);
    physics.createInterface("plain", from, to, InterfaceType::Interior)->setIsMapped(true);
    physics.createTranslationallyPeriodicInterface("shifted", in, out, {0, 2, 0}, InterfaceType::Wall)
        ->setIsStatic(true);
    Interface* turned =
        physics.createRotationallyPeriodicInterface("turned", out, in, 90, {0, 0, 0}, {0, 0, 1}, InterfaceType::Fan);
    turned->setMeshConnectivity(MeshConnectivity::NonConformal);
    turned->setIsMeshValid(true);
    turned->settings()->createThreadBundle(0, ThreadType::Periodic, 70, {1});
}

void shells(Physics& physics, const Geometry& /*geometry*/)
{
    Model* flow = physics.createModel();
    Model* conduction = physics.createModel();
    Volume* fluid = physics.createVolume("fluid", std::string("left"), VolumeType::Fluid, flow);
    Volume* metal = physics.createVolume("metal", std::string("right"), VolumeType::Solid, flow);
    Boundary* hot = fluid->createBoundary("hot", std::string("middle@left"), BoundaryType::Wall);
    Boundary* cold = metal->createBoundary("cold", std::string("middle@right"), BoundaryType::Wall);
    Interface* contact = physics.createInterface("contact", hot, cold, InterfaceType::Wall, flow);
    hot->setShellModel(conduction);
    hot->setShellType(ShellType::HeatConduction);
    hot->shellSettings(contact)->createThreadBundle(0, ThreadType::Wall, 80, {1});
    hot->nonOverlappingShellSettings();
    cold->addTag(BoundaryTag::Interface);
}

void models(Physics& physics, const Geometry& /*geometry*/)
{
    Model* flow = physics.createModel();
    Model* heat = physics.createModel();
    Model* lost = physics.createModel();
    flow->addDomain(2, DomainType::Phase, "Water Vapour");
    flow->addDomain(5, DomainType::Interaction, "Vapour-Water");
    heat->removeDomain(1);
    physics.createVolume("fluid", std::string("left"), VolumeType::Fluid, flow)->internalSettings();
    physics.createVolume("metal", std::string("right"), VolumeType::Solid, heat)->settings();
    physics.createVolume("orphan", std::string("loose"), VolumeType::Solid, lost)->settings();
    lost->destroy();
}

void zones(Physics& physics, const Geometry& /*geometry*/)
{
    Volume* fluid = physics.createVolume("fluid", std::string("left"), VolumeType::Fluid);
    Boundary* in = fluid->createBoundary("in", std::string("inlet@left"), BoundaryType::VelocityInlet);
    Settings* settings = fluid->settings();
    settings->createThreadBundle(4, ThreadType::Fluid, 12, {2, 1});
    settings->createThreadBundle(0, ThreadType::Solid, 11, {1})->setZoneIds({300, -200});
    settings->createThreadBundle(4, ThreadType::Fluid, 13, {}); // replaces 12
    in->nonOverlappingBoundarySettings()->createThreadBundle(0, ThreadType::VelocityInlet, -5, {1});
    settings->threadBundle(0)->setThreadId(15);
}

void names(Physics& physics, const Geometry& geometry)
{
    Volume* volume =
        physics.createVolume("the \"cold\"  side, 1", Regions{geometry.region("far side")}, VolumeType::Fluid);
    Boundary* wall = volume->createBoundary("2", Regions{geometry.region("outer wall")}, BoundaryType::Wall);
    Boundary* skin = volume->createBoundary("Au\xc3\x9f"
                                            "enhaut ",
                                            Regions{geometry.region("skin@far side")}, BoundaryType::Wall);
    physics.createInterface("-1 -1 -1", wall, skin, InterfaceType::Wall);
    physics.primaryModel()->addDomain(-3, DomainType::Unset, "0 1 2");
}

void equalNames(Physics& physics, const Geometry& /*geometry*/)
{
    physics.createVolume("same", std::string("left"), VolumeType::Fluid)
        ->createBoundary("in", std::string("inlet@left"), BoundaryType::VelocityInlet);
    Volume* newer = physics.createVolume("same", std::string("right"), VolumeType::Fluid);
    newer->createBoundary("wall", std::string("outlet@right"), BoundaryType::Wall);
    newer->createBoundary("wall", std::string("middle@right"), BoundaryType::Symmetry);
}

void faults(Physics& physics, const Geometry& /*geometry*/)
{
    Volume* first = physics.createVolume("first", std::string("left, gone"), VolumeType(17));
    Volume* second = physics.createVolume("second", std::string("rotor"), VolumeType::Solid);
    Boundary* outside = first->createBoundary("outside", std::string("outlet"), BoundaryType::Fan);
    Boundary* other = second->createBoundary("other", std::string("outlet, middle"), BoundaryType(-6));
    physics.createInterface("loop", outside, outside, InterfaceType::Radiator);
    physics.createInterface("overlap", outside, other, InterfaceType(33));
    physics.setEnforceRestrictions(true);
}

} // namespace

std::vector<KeptSetUp> keptSetUps()
{
    return {{"default-volume", defaultVolume},
            {"empty", empty},
            {"equal-names", equalNames},
            {"faults", faults},
            {"groups", groups},
            {"masks", masks},
            {"models", models},
            {"names", names},
            {"periodic-interfaces", periodicInterfaces},
            {"region-lists", regionLists},
            {"shells", shells},
            {"zones", zones}};
}

} // namespace physics
