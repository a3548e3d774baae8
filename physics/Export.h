#pragma once

/// Marks what the library shows to its users; everything else stays hidden in it.
#define PHYSICS_EXPORT __attribute__((visibility("default")))
