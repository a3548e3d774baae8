#include "apps/gmsh/MeshTool.h"

#include "apps/CommandLine.h"
#include "apps/InputError.h"
#include "apps/Output.h"
#include "apps/Progress.h"
#include "apps/ReadInChild.h"
#include "apps/Verb.h"
#include "apps/gmsh/MeshFile.h"
#include "locationmodel/TopologyBuilder.h"
#include "locationmodel/TopologyFile.h"
#include "support/WholeFile.h"

#include <CLI/CLI.hpp>

#include <ostream>

namespace physics::apps {
namespace {

TopologyText convert(const std::string& file)
{
    try {
        const MeshTopology topology = buildModel(readMesh(file));
        return {gtm::bundled::writeTopology(*topology.model), topology.notes};
    } catch (const gtm::bundled::TopologyError& error) {
        throw InputError(file + ": " + error.what());
    }
}

ExitCode run(const std::string& file, const std::string& target, Output& output)
{
    const TopologyText reading = [&] {
        const Progress progress(output, "reading " + file);
        return readInChild(file, "the mesh library", [&file] { return convert(file); });
    }();
    for (const std::string& note : reading.notes) {
        output.note(note);
    }
    if (target.empty()) {
        output.out() << reading.topology;
        return ExitCode::Fine;
    }
    try {
        gtm::support::writeWholeFile(target, reading.topology);
    } catch (const gtm::support::FileError& error) {
        throw InputError(error.what());
    }
    return ExitCode::Fine;
}

ExitCode parseAndRun(const std::vector<std::string>& arguments, Output& output)
{
    CLI::App app("Makes a topology file of a mesh file of Gmsh.", "physics-gmsh");
    std::string file;
    std::string target;
    app.add_option("mesh", file, "A mesh file, MSH 4.1 or 2.2, text or binary")->required();
    app.add_option("-o,--output", target, "The topology file; without it, standard output");
    app.footer("Exit code: 0 fine, 2 usage or unreadable input, 3 a fault of ours.");
    return parseCommandLine(app, arguments, output) ? run(file, target, output) : ExitCode::Fine;
}

} // namespace

ExitCode runMeshTool(const std::vector<std::string>& arguments, Output& output)
{
    return runProgram("physics-gmsh", output, [&] { return parseAndRun(arguments, output); });
}

} // namespace physics::apps
