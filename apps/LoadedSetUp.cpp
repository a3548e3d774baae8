#include "apps/LoadedSetUp.h"

#include "apps/InputError.h"
#include "apps/SetUpOptions.h"

namespace physics::apps {
namespace {

std::variant<LoadedCase, RestoredSetUp> load(const std::filesystem::path& file, const SetUpOptions& options,
                                             Output& output, LoadedCase::Restrictions restrictions)
{
    if (isCaseFile(file)) {
        return LoadedCase(file, output, restrictions);
    }
    if (options.geometry().empty()) {
        throw InputError(file.string() + ": a saved text does not name its geometry; give it with --geometry. (The "
                                         "name of a case file ends in .json.)");
    }
    return RestoredSetUp(options.geometry(), options.reading(), file, output);
}

} // namespace

LoadedSetUp::LoadedSetUp(const std::filesystem::path& file, const SetUpOptions& options, Output& output,
                         LoadedCase::Restrictions restrictions)
    : m_loaded(load(file, options, output, restrictions))
{}

const BuiltCase& LoadedSetUp::built() const
{
    return std::visit([](const auto& loaded) -> const BuiltCase& { return loaded.built(); }, m_loaded);
}

const gtm::bundled::LocationModel& LoadedSetUp::locationModel() const
{
    return std::visit(
        [](const auto& loaded) -> const auto& { return loaded.locationModel(); }, m_loaded);
}

std::vector<std::string> LoadedSetUp::refusals() const
{
    return isCase() ? asCase()->refusals() : std::vector<std::string>();
}

} // namespace physics::apps
