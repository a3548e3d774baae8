#include "tests/apps/ProgramRun.h"

#include "tests/apps/ToolRun.h"

#include <sys/wait.h>

#include <cstdlib>

ProgramRun::ProgramRun(const std::string& arguments)
{
    const TemporaryFile outFile("out.txt", "");
    const TemporaryFile errFile("err.txt", "");
    const WorkingFolder folder(sourceFile(""));
    const std::string command =
        "'" PHYSICS_CASE_PROGRAM "' " + arguments + " >'" + outFile.path() + "' 2>'" + errFile.path() + "'";
    const int status = std::system(command.c_str());
    code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    out = contentOf(outFile.path());
    err = contentOf(errFile.path());
}
