#include "apps/RestoredSetUp.h"

#include "apps/InputError.h"
#include "apps/Output.h"
#include "apps/Progress.h"
#include "locationmodel/LocationModel.h"
#include "physics/Physics.h"
#include "support/WholeFile.h"

namespace physics::apps {
namespace {

std::string read(const std::filesystem::path& file)
{
    try {
        return gtm::support::readWholeFile(file);
    } catch (const gtm::support::FileError& error) {
        throw InputError(error.what());
    }
}

} // namespace

RestoredSetUp::RestoredSetUp(const std::filesystem::path& geometry, const ReadingChoice& reading,
                             const std::filesystem::path& text, Output& output)
{
    const std::string content = read(text);
    {
        const Progress progress(output, "reading " + geometry.string());
        m_geometry = readGeometry(geometry, reading);
    }
    for (const std::string& note : m_geometry.notes) {
        output.note(note);
    }
    m_built.physics = std::make_unique<Physics>(m_geometry.model.get(), true);
    std::vector<std::string> reasons = m_built.physics->checkSerialised(content);
    for (std::string& reason : reasons) {
        reason.insert(0, text.string() + ":");
    }
    if (!reasons.empty()) {
        throw InputError(reasons);
    }
    if (!m_built.physics->restore(content)) {
        throw InputError(text.string() + ": the geometry refuses this set-up. " + m_geometry.model->lastRefusal());
    }
}

} // namespace physics::apps
