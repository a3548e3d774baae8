#pragma once

#include "support/JsonSource.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace gtm::support {

/// The text of a JSON document and what was parsed from it. Places are looked up in the text when a
/// message needs one, so that reading a good file pays nothing for them.
class JsonDocument {
public:
    /// Throws `JsonError`.
    JsonDocument(std::string text, std::string name);

    const std::string& name() const { return m_name; }
    const nlohmann::json& json() const { return m_json; }

    enum class At { Value, Key };

    /// "FILE:LINE:COLUMN: at PATH: ", for the value at a JSON pointer, or for the key in front of it.
    std::string place(std::string_view pointer, At at) const;

    /// Where each value stands, by its JSON pointer.
    std::unordered_map<std::string, JsonPosition> positions() const;

private:
    class Parser;

    std::string prefix(std::size_t offset) const;

    std::string m_text;
    std::string m_name;
    nlohmann::json m_json;
};

} // namespace gtm::support
