#pragma once

#include "apps/CaseFile.h"

#include <map>
#include <string>
#include <vector>

namespace physics::apps {

/// Makes names for a case from what a geometry file says, by one rule: blanks at the ends go, "::" and control
/// characters become "_", and a name that is taken gets "-2", "-3" and so on. The list that it keeps leads back
/// from each name that is not as in the file.
class NamesInCase {
public:
    /// Does not own `list`, which grows and must outlive this object.
    explicit NamesInCase(std::vector<CaseFile::NameInFile>& list) : m_list(list) {}

    /// A name of its own among those of one kind ("volume") within one `scope`, which stands in front of it in
    /// the list. `unnamed` is the name where `said` leaves nothing; only that is not listed.
    std::string take(const std::string& kind, const std::string& scope, const std::string& said,
                     const std::string& unnamed);

private:
    std::vector<CaseFile::NameInFile>& m_list;

    /// Each taken name with the number to try next for another one like it.
    std::map<std::string, int> m_taken;
};

} // namespace physics::apps
