#pragma once

#include <string>

namespace physics::apps {

struct CaseFile;

/// A case file as JSON: what the reader reads back to the same values. Throws `InputError` when a text in it
/// is not UTF-8, which JSON cannot hold.
std::string writeCase(const CaseFile& file);

} // namespace physics::apps
