#include "apps/LoadedCase.h"

#include "apps/CaseReader.h"
#include "apps/CaseReferences.h"
#include "apps/Complaints.h"
#include "apps/InputError.h"
#include "apps/Output.h"
#include "apps/Progress.h"
#include "locationmodel/LocationModel.h"
#include "physics/Physics.h"

namespace physics::apps {
namespace {

using gtm::support::JsonError;
using gtm::support::JsonSource;

JsonSource parse(const std::filesystem::path& file)
{
    try {
        return JsonSource::fromFile(file);
    } catch (const JsonError& error) {
        throw InputError(error.what());
    }
}

/// The complaints as lines, the last of which tells when there are more.
std::vector<std::string> linesOf(const Complaints& complaints, const JsonSource& source)
{
    std::vector<std::string> lines = complaints.lines();
    if (complaints.isFull()) {
        lines.push_back(source.name() + ": there may be more; these are the first " + std::to_string(Complaints::most) +
                        ".");
    }
    return lines;
}

void add(const std::vector<Problem>& problems, const JsonSource& source, Complaints& complaints)
{
    for (const Problem& problem : problems) {
        if (complaints.isFull()) {
            return;
        }
        complaints.add(source.place(problem.path) + problem.sentence);
    }
}

CaseFile readChecked(const JsonSource& source)
{
    Complaints complaints;
    CaseFile file = readCase(source, complaints);
    add(checkReferences(file), source, complaints);
    if (!complaints.isEmpty()) {
        throw InputError(linesOf(complaints, source));
    }
    return file;
}

/// The name of the geometry file is relative to the case file, so that both can be moved together.
GeometryFile readGeometryOf(const CaseFile& file, const JsonSource& source, const std::filesystem::path& caseFile,
                            Output& output)
{
    const Progress progress(output, "reading " + file.geometry.file);
    try {
        return readGeometry(caseFile.parent_path() / file.geometry.file, file.geometry.reading);
    } catch (const InputError& error) {
        throw InputError(source.place(file.geometry.path) + "the geometry cannot be used. " + error.what());
    }
}

} // namespace

LoadedCase::LoadedCase(const std::filesystem::path& file, Output& output, Restrictions restrictions)
    : m_source(parse(file)),
      m_caseFile(readChecked(m_source)),
      m_geometry(readGeometryOf(m_caseFile, m_source, file, output))
{
    for (const std::string& note : m_geometry.notes) {
        output.note(note);
    }
    if (restrictions == Restrictions::Off) {
        m_caseFile.enforceRestrictions = false;
    }
    {
        Progress progress(output, "building " + file.string(), noOfSteps(m_caseFile));
        m_built = buildCase(m_caseFile, *m_geometry.model, &progress);
    }
    Complaints complaints;
    add(m_built.refusals, m_source, complaints);
    m_refusals = linesOf(complaints, m_source);
}

} // namespace physics::apps
