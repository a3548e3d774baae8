#include "support/JsonSource.h"

#include "support/JsonDocument.h"
#include "support/WholeFile.h"

#include <nlohmann/json.hpp>

#include <system_error>
#include <utility>

namespace gtm::support {

JsonSource::JsonSource(std::shared_ptr<const JsonDocument> document) : m_document(std::move(document)) {}

JsonSource JsonSource::fromFile(const std::filesystem::path& file)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(file, ignored)) {
        throw JsonError(file.string() + ": this is a folder; give the name of a JSON file.");
    }
    try {
        return fromText(readWholeFile(file), file.string());
    } catch (const FileError& error) {
        throw JsonError(error.what());
    }
}

JsonSource JsonSource::fromText(std::string text, std::string name)
{
    return JsonSource(std::make_shared<JsonDocument>(std::move(text), std::move(name)));
}

const std::string& JsonSource::name() const { return m_document->name(); }

JsonNode JsonSource::root() const { return {m_document, m_document->json(), ""}; }

std::string JsonSource::place(std::string_view pointer) const
{
    return m_document->place(pointer, JsonDocument::At::Value);
}

std::unordered_map<std::string, JsonPosition> JsonSource::positions() const { return m_document->positions(); }

} // namespace gtm::support
