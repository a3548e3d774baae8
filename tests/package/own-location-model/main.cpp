#include "physics/Boundary.h"
#include "physics/Physics.h"
#include "physics/Volume.h"
#include "tests/scripted/World.h"

// The installed library runs on a location model that the program brings.
int main()
{
    scripted::World world;
    world.face("shore", world.body("lake"));

    physics::Physics setup(world.model(), true);
    physics::Volume* water = setup.createVolume("water", "lake", physics::VolumeType::Fluid);
    physics::Boundary* wall = water->createBoundary("wall", "shore@lake");
    return wall->faceUses().size() == 1 && wall->type() == physics::BoundaryType::Wall ? 0 : 1;
}
