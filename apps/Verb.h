#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace physics::apps {

class Output;

/// What a run of the program ends with.
enum class ExitCode {
    Fine = 0,
    CaseHasProblems = 1,
    BadInput = 2, ///< a wrong command line, or a file that cannot be read
    OurFault = 3,
};

/// One thing that the program can be asked to do. Verbs stand in the table of `CaseTool`.
class Verb {
public:
    virtual ~Verb() = default;
    Verb(const Verb&) = delete;
    Verb& operator=(const Verb&) = delete;

    /// The word on the command line, and one line about it for the help.
    virtual std::string name() const = 0;
    virtual std::string summary() const = 0;

    /// Adds the options and arguments to the part of the command line behind the word. They are stored in
    /// the verb, which lives longer.
    virtual void addOptions(CLI::App& app) = 0;

    /// Does it. Throws `InputError` where the input cannot be used.
    virtual ExitCode run(Output& output) = 0;

protected:
    Verb() = default;
};

} // namespace physics::apps
