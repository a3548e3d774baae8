#include "apps/CommandLine.h"

#include "apps/InputError.h"
#include "apps/Output.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <exception>
#include <ostream>

namespace physics::apps {
namespace {

/// The parser's message as one line of ours.
std::string lineOf(const std::string& program, const CLI::ParseError& error)
{
    std::string line = error.what();
    line.erase(line.find_last_not_of(".\r\n ") + 1);
    std::replace(line.begin(), line.end(), '\n', ' ');
    return program + ": " + line + "; try \"" + program + " --help\".";
}

} // namespace

bool parseCommandLine(CLI::App& app, const std::vector<std::string>& arguments, Output& output)
{
    try {
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    } catch (const CLI::Success& help) {
        app.exit(help, output.out(), output.out());
        return false;
    } catch (const CLI::ParseError& error) {
        throw InputError(lineOf(app.get_name(), error));
    }
    return true;
}

ExitCode runProgram(const std::string& name, Output& output, const std::function<ExitCode()>& work)
{
    try {
        const ExitCode code = work();
        if (!output.out().flush()) {
            throw InputError(name + ": cannot write the result; is the disk full?");
        }
        return code;
    } catch (const InputError& error) {
        for (const std::string& line : error.lines()) {
            output.complain(line);
        }
        return ExitCode::BadInput;
    } catch (const std::exception& error) {
        output.complain(name + ": a fault of this program: " + error.what() +
                        ". Please report it together with the input.");
        return ExitCode::OurFault;
    }
}

} // namespace physics::apps
