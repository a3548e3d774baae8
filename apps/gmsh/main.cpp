#include "apps/Output.h"
#include "apps/Verb.h"
#include "apps/gmsh/MeshTool.h"

#include <unistd.h>

#include <iostream>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
    physics::apps::Output output(std::cout, std::cerr, false, false);
    if (isatty(STDERR_FILENO) == 1) {
        output.showProgress();
    }
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    return static_cast<int>(physics::apps::runMeshTool(arguments, output));
}
