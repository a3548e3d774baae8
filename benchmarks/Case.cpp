#include "benchmarks/Case.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Types.h"
#include "physics/Volume.h"

#include <string>

namespace benchmarks {
namespace {

using namespace physics;

class Filling {
public:
    explicit Filling(Physics& setUp) : m_setUp(setUp) {}

    void fill(std::int64_t noOfBodies)
    {
        Boundary* before = nullptr;
        for (std::int64_t i = 0; i < noOfBodies; ++i) {
            Volume* volume = m_setUp.createVolume("volume-" + std::to_string(i), Geometry::body(i), VolumeType::Fluid);
            addThread(volume->settings(), ThreadType::Fluid);
            addWalls(*volume, i);
            Boundary* here = addBoundary(*volume, Geometry::joint(i), i);
            if (before != nullptr)
                join(*before, *here, i);
            before = addBoundary(*volume, Geometry::joint(i + 1), i);
        }
    }

private:
    static Boundary* addBoundary(Volume& volume, const std::string& face, std::int64_t body)
    {
        return volume.createBoundary(face + " of " + volume.name(), Geometry::side(face, body), BoundaryType::Wall);
    }

    void addWalls(Volume& volume, std::int64_t body)
    {
        for (int k = 0; k < Geometry::wallsOfBody; ++k) {
            Boundary* wall = addBoundary(volume, Geometry::wall(body, k), body);
            addThread(wall->nonOverlappingBoundarySettings(), ThreadType::Wall);
            if (k == 0) {
                wall->setShellModel(volume.model());
                wall->setShellType(ShellType::HeatConduction);
                addThread(wall->nonOverlappingShellSettings(), ThreadType::Solid);
            }
        }
    }

    void join(Boundary& first, Boundary& second, std::int64_t body)
    {
        Interface* interface =
            m_setUp.createInterface("interface-" + std::to_string(body), &first, &second, InterfaceType::Wall);
        addThread(interface->settings(), ThreadType::Interface);
        for (const Side side : {Side::First, Side::Second}) {
            interface->boundary(side)->addTag(BoundaryTag::Interface);
            addThread(interface->boundarySettings(side), ThreadType::Wall);
        }
    }

    void addThread(Settings* settings, ThreadType type)
    {
        ++m_lastThread;
        settings->createThreadBundle(0, type, m_lastThread, {1})->setZoneIds({m_lastThread});
    }

    Physics& m_setUp;
    int m_lastThread = 0;
};

} // namespace

void fill(Physics& setUp, std::int64_t noOfBodies) { Filling(setUp).fill(noOfBodies); }

std::int64_t noOfObjects(const Physics& setUp)
{
    std::size_t count = setUp.volumes().size() + setUp.interfaces().size();
    for (const Boundary* boundary : setUp.boundaries())
        count += 1 + boundary->patches().size();
    for (const Settings* settings : setUp.settings())
        count += 1 + settings->threadBundles().size();
    return static_cast<std::int64_t>(count);
}

} // namespace benchmarks
