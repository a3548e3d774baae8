#pragma once

#include "support/JsonNode.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>

namespace gtm::support {

/// What is wrong with a JSON text: one line that names the file, line and column, the JSON path, what
/// was read and what was expected, so that it can be shown as it is.
class JsonError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A place in a text, counted from 1; columns count characters, not bytes.
struct JsonPosition {
    std::size_t line = 1;
    std::size_t column = 1;
};

/// A parsed JSON document that knows where in its text each value stands. A cheap handle: copies share
/// the document, which lives as long as any of them or any of its nodes.
class JsonSource {
public:
    /// Reads and parses a file. Throws `JsonError` when it cannot be read, is not valid JSON, or gives
    /// one key twice in an object, of which a reader could see only one.
    static JsonSource fromFile(const std::filesystem::path& file);

    /// Parses `text`; `name` stands for the file in messages.
    static JsonSource fromText(std::string text, std::string name);

    const std::string& name() const;
    JsonNode root() const;

    /// "FILE:LINE:COLUMN: at PATH: " for the value at a JSON pointer that exists in the document: what a
    /// complaint begins with that is found after reading.
    std::string place(std::string_view pointer) const;

    /// Where each value stands, by its JSON pointer: for whoever needs the places of very many values,
    /// because the text is walked through once, and not for each.
    std::unordered_map<std::string, JsonPosition> positions() const;

private:
    explicit JsonSource(std::shared_ptr<const JsonDocument> document);

    std::shared_ptr<const JsonDocument> m_document;
};

} // namespace gtm::support
