#include "apps/CaseReferences.h"

#include "apps/DefinedNames.h"
#include "support/InQuotes.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>

namespace physics::apps {
namespace {

using gtm::support::inQuotes;

class References {
public:
    explicit References(const CaseFile& file) : m_file(file) {}

    std::vector<Problem> check();

private:
    void define();
    void define(const CaseFile::Model& model);
    void define(const CaseFile::Volume& volume);
    void refer(const CaseFile::Volume& volume);
    void refer(const CaseFile::Interface& interface);
    void refer(const CaseFile::Group& group);
    void referToModel(const std::string& model, const std::string& path);
    void refer(const std::vector<CaseFile::Thread>& threads, const std::string& model);

    /// The default volume or boundary is one of a kind.
    template <class T>
    void allowOneDefault(const std::vector<T>& list, const std::string& kind);

    const CaseFile& m_file;
    std::vector<Problem> m_problems;
    DefinedNames m_models{"model", m_problems};
    DefinedNames m_volumes{"volume", m_problems};
    DefinedNames m_boundaries{"boundary", m_problems};
    DefinedNames m_interfaces{"interface", m_problems};
    std::string m_primaryModel;
    std::map<std::string, std::set<int>> m_domains; ///< of the models of which all domains could be read
    std::map<std::string, std::pair<const CaseFile::Volume*, const CaseFile::Boundary*>> m_boundaryByName;
    std::map<std::string, std::string> m_groupByVolume;
    std::map<int, std::string> m_threadById;
};

std::vector<Problem> References::check()
{
    define();
    for (const CaseFile::Volume& volume : m_file.volumes) {
        refer(volume);
    }
    for (const CaseFile::Interface& interface : m_file.interfaces) {
        refer(interface);
    }
    for (const CaseFile::Group& group : m_file.deactivated) {
        refer(group);
    }
    return std::move(m_problems);
}

void References::define()
{
    if (m_file.models.empty()) {
        m_domains.emplace("", std::set<int>{1});
    } else {
        m_primaryModel = m_file.models.front().name;
    }
    for (const CaseFile::Model& model : m_file.models) {
        define(model);
    }
    allowOneDefault(m_file.volumes, "volume");
    for (const CaseFile::Volume& volume : m_file.volumes) {
        define(volume);
    }
    for (const CaseFile::Interface& interface : m_file.interfaces) {
        m_interfaces.define(interface.name, interface.path);
    }
}

void References::define(const CaseFile::Model& model)
{
    m_models.define(model.name, model.path);
    const std::vector<CaseFile::Domain> ofNewModel{{"", 1, DomainType::Geometry, "Default"}};
    std::set<int> ids;
    bool areKnown = true;
    for (const CaseFile::Domain& domain : model.domains.value_or(ofNewModel)) {
        areKnown = areKnown && !domain.name.empty();
        if (!domain.name.empty() && !ids.insert(domain.id).second) {
            m_problems.push_back({domain.path + "/id", "the id " + std::to_string(domain.id) +
                                                           " is taken by another domain of this model; give each "
                                                           "domain its own."});
        }
    }
    if (areKnown) {
        m_domains.emplace(model.name, ids);
    }
}

void References::define(const CaseFile::Volume& volume)
{
    m_volumes.define(volume.name, volume.path);
    allowOneDefault(volume.boundaries, "boundary of this volume");
    for (const CaseFile::Boundary& boundary : volume.boundaries) {
        const bool isNamed = !volume.name.empty() && !boundary.name.empty();
        const std::string fullName = isNamed ? volume.name + "::" + boundary.name : "";
        m_boundaries.define(fullName, boundary.path);
        m_boundaryByName.emplace(fullName, std::pair(&volume, &boundary));
    }
}

template <class T>
void References::allowOneDefault(const std::vector<T>& list, const std::string& kind)
{
    const T* first = nullptr;
    for (const T& item : list) {
        if (item.location || item.name.empty()) {
            continue;
        }
        if (first != nullptr) {
            m_problems.push_back(
                {item.path, "the default " + kind + " is already at " + first->path + "; there can be only one."});
        } else {
            first = &item;
        }
    }
}

void References::referToModel(const std::string& model, const std::string& path)
{
    m_models.refer(model, path + "/model");
}

void References::refer(const CaseFile::Volume& volume)
{
    referToModel(volume.model, volume.path);
    refer(volume.threads, volume.model);
    refer(volume.internalThreads, volume.model);
    for (const CaseFile::Boundary& boundary : volume.boundaries) {
        refer(boundary.threads, volume.model);
        if (boundary.shell) {
            referToModel(boundary.shell->model, boundary.shell->path);
            refer(boundary.shell->threads, boundary.shell->model);
        }
    }
}

void References::refer(const CaseFile::Interface& interface)
{
    for (const CaseFile::Side& side : interface.sides) {
        m_boundaries.refer(side.boundary, side.path);
        const auto found = m_boundaryByName.find(side.boundary);
        if (side.boundary.empty() || found == m_boundaryByName.end()) {
            continue;
        }
        const auto& [volume, boundary] = found->second;
        refer(side.threads, volume->model);
        if (boundary->shell) {
            refer(side.shellThreads, boundary->shell->model);
        } else if (!side.shellThreads.empty()) {
            m_problems.push_back({side.path + "/shellThreads", "the boundary " + inQuotes(side.boundary) +
                                                                   " has no shell; give it one at " + boundary->path +
                                                                   ", or take these threads out."});
        }
    }
    referToModel(interface.model, interface.path);
    refer(interface.threads, interface.model);
}

void References::refer(const CaseFile::Group& group)
{
    for (std::size_t i = 0; i < group.volumes.size(); ++i) {
        const std::string& name = group.volumes[i];
        const std::string path = group.path + "/" + std::to_string(i);
        m_volumes.refer(name, path);
        const auto [known, isNew] = m_groupByVolume.emplace(name, path);
        if (!isNew && !name.empty()) {
            m_problems.push_back({path, "the volume " + inQuotes(name) + " is already deactivated at " + known->second +
                                            "; name it only once."});
        }
    }
}

void References::refer(const std::vector<CaseFile::Thread>& threads, const std::string& model)
{
    std::set<int> indexes;
    const auto known = m_domains.find(model.empty() ? m_primaryModel : model);
    for (const CaseFile::Thread& thread : threads) {
        if (thread.type == ThreadType::Unset) {
            continue; // could not be read
        }
        if (!indexes.insert(thread.index).second) {
            m_problems.push_back({thread.path, "the index " + std::to_string(thread.index) +
                                                   " is taken by another thread of this list; give each its own."});
        }
        const auto [owner, isNew] = m_threadById.emplace(thread.threadId, thread.path);
        if (!isNew) {
            m_problems.push_back({thread.path + "/threadId", "the thread id " + std::to_string(thread.threadId) +
                                                                 " is taken by the thread at " + owner->second +
                                                                 "; give each thread its own."});
        }
        for (std::size_t i = 0; known != m_domains.end() && i < thread.domains.size(); ++i) {
            if (known->second.count(thread.domains[i]) == 0) {
                m_problems.push_back({thread.path + "/domains/" + std::to_string(i),
                                      "the model has no domain " + std::to_string(thread.domains[i]) +
                                          "; define it in the model, or name one that is defined."});
            }
        }
    }
}

} // namespace

std::vector<Problem> checkReferences(const CaseFile& file) { return References(file).check(); }

} // namespace physics::apps
