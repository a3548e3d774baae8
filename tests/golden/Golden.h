#pragma once

#include <gtest/gtest.h>

#include <string>

namespace golden {

/// Compares a whole output with the file of that name in `tests/golden/`; a failure shows the first line that
/// differs. With the environment variable PHYSICS_REWRITE_GOLDEN set to 1 it writes the file instead and fails,
/// so that a rewriting run is never mistaken for a passing one. Read what was rewritten before you commit it.
testing::AssertionResult matches(const std::string& output, const std::string& name);

} // namespace golden
