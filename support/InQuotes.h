#pragma once

#include <string>
#include <string_view>

namespace gtm::support {

/// A text in quotes for a message: on one line, with quotes, backslashes and control characters escaped as
/// in JSON. Bytes that are not UTF-8 become replacement characters.
std::string inQuotes(std::string_view text);

} // namespace gtm::support
