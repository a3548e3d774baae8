// One fixed piece of work, named by the argument, on a case of 1 000 boundaries on the bundled location model.
// benchmarks/instructions.py runs each under callgrind, which counts the instructions of `measured` alone; without
// an argument the names are listed.

#include "benchmarks/Case.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"

#include <cstdint>
#include <functional>
#include <iostream>
#include <map>
#include <sstream>
#include <string>

namespace workloads {
namespace {

using physics::Physics;

constexpr std::int64_t noOfBodies = 100;

/// Nobody looks at it; it keeps the compiler from leaving work out.
volatile std::size_t result;

using Work = std::function<void(Physics& setUp)>;

void findAll(Physics& setUp)
{
    for (const physics::Boundary* boundary : setUp.boundaries())
        result = setUp.findBoundaryById(boundary->id())->patches().size();
    for (const physics::ThreadBundle* bundle : setUp.threadBundles())
        result = setUp.findThreadBundleByThreadId(bundle->threadId())->zoneIds().size();
}

void moveAll(Physics& setUp)
{
    physics::Model* target = setUp.createModel();
    for (physics::Volume* volume : setUp.volumes())
        volume->setModel(target);
    for (physics::Interface* interface : setUp.interfaces())
        interface->setModel(target);
}

void destroyAll(Physics& setUp)
{
    for (physics::Volume* volume : setUp.volumes())
        volume->destroy();
}

void dump(const Physics& setUp)
{
    std::ostringstream stream;
    setUp.dump(stream);
    result = stream.str().size();
}

/// By name; each is given a filled set-up, but "build", which fills one.
std::map<std::string, Work> works(const std::string& text)
{
    return {
        {"build", [](Physics& setUp) { benchmarks::fill(setUp, noOfBodies); }},
        {"check", [&text](Physics& setUp) { result = setUp.checkSerialised(text).size(); }},
        {"clear", [](Physics& setUp) { setUp.clear(); }},
        {"destroy", destroyAll},
        {"find", findAll},
        {"move", moveAll},
        {"report", [](Physics& setUp) { dump(setUp); }},
        {"restore", [&text](Physics& setUp) { result = setUp.restore(text); }},
        {"serialise", [](Physics& setUp) { result = setUp.serialise().size(); }},
        {"validate", [](Physics& setUp) { result = setUp.validate(true, false).size(); }},
    };
}

} // namespace

/// What is counted. Not in the unnamed namespace, so that its name is known to callgrind.
[[gnu::noinline]] void measured(const Work& work, Physics& setUp) { work(setUp); }

} // namespace workloads

int main(int argc, char** argv)
{
    std::string text;
    const auto works = workloads::works(text);
    if (argc != 2 || !works.contains(argv[1])) {
        for (const auto& [name, work] : works)
            std::cout << name << '\n';
        return argc == 1 ? 0 : 2;
    }
    const std::string name = argv[1];
    const benchmarks::Geometry geometry(workloads::noOfBodies);
    physics::Physics setUp(geometry.model(), true);
    if (name != "build")
        benchmarks::fill(setUp, workloads::noOfBodies);
    text = setUp.serialise();
    workloads::measured(works.at(name), setUp);
    return 0;
}
