#pragma once

/// Marks what the location model shows to its users: the declarations of `gtm` stay visible in
/// whichever library implements them, also when that library hides everything else.
#define GTM_EXPORT __attribute__((visibility("default")))
