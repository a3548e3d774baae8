#pragma once

#include "apps/proposal/TypeMapping.h"

#include <string>
#include <vector>

namespace physics::apps {

class Output;

/// What became of one thing that a geometry file says.
struct LedgerEntry {
    std::string inFile; ///< `family "wing", BCWallViscous`
    std::string inCase; ///< `boundary "air::wing", Wall`
    Fidelity fidelity = Fidelity::Exact;
    std::string remark; ///< what is lost, or where our word for it comes from; may be empty
};

/// Prints the entries as a table, and how many there are of each fidelity.
void listLedger(const std::vector<LedgerEntry>& ledger, Output& output);

} // namespace physics::apps
