#include "apps/proposal/Ledger.h"

#include "apps/Output.h"
#include "apps/Table.h"

#include <algorithm>
#include <ostream>

namespace physics::apps {

void listLedger(const std::vector<LedgerEntry>& ledger, Output& output)
{
    Table table({"in the file", "in the case", "mapping", "remark"});
    for (const LedgerEntry& entry : ledger) {
        table.add({entry.inFile, entry.inCase, std::string(inWords(entry.fidelity)),
                   entry.remark.empty() ? "-" : entry.remark});
    }
    table.print("mappings", output);
    const auto noOf = [&ledger](Fidelity fidelity) {
        return std::to_string(
                   std::count_if(ledger.begin(), ledger.end(),
                                 [fidelity](const LedgerEntry& entry) { return entry.fidelity == fidelity; })) +
               " " + std::string(inWords(fidelity));
    };
    output.out() << noOf(Fidelity::Exact) << ", " << noOf(Fidelity::Approximate) << ", " << noOf(Fidelity::NotPossible)
                 << '\n';
}

} // namespace physics::apps
