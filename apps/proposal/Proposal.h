#pragma once

#include "apps/CaseFile.h"
#include "apps/proposal/Ledger.h"

#include <vector>

namespace physics::apps {

struct GeometryFile;

/// A case that somebody can start from, and what each piece of it was made of.
struct Proposal {
    CaseFile file; ///< without its geometry
    std::vector<LedgerEntry> ledger;
};

/// Proposes a case from what a geometry file says, as docs/mapping.md tells. All bodies are in volumes, and the
/// whole surface of each volume is in boundaries. The same file gives the same proposal.
Proposal propose(const GeometryFile& geometry);

} // namespace physics::apps
