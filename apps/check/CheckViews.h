#pragma once

#include <string>

namespace physics::apps {

class Output;
struct CheckReport;

/// For people: a heading for each object that something is wrong with, the findings about it, and the
/// library's own lines about it as they are; then the coverage and the number of findings.
void writeText(const CheckReport& report, Output& output);

/// For programs of our users; docs/findings.md describes it.
std::string toJson(const CheckReport& report);

/// For tools that show the findings of any checker: SARIF 2.1.0.
std::string toSarif(const CheckReport& report);

} // namespace physics::apps
