#include "support/InQuotes.h"

#include <nlohmann/json.hpp>

namespace gtm::support {

std::string inQuotes(std::string_view text)
{
    return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace gtm::support
