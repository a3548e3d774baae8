#include "support/JsonNode.h"

#include "support/InQuotes.h"
#include "support/JsonDocument.h"
#include "support/JsonSource.h"
#include "support/NearestName.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <limits>
#include <utility>

namespace gtm::support {
namespace {

/// A value as a message shows it: short, and on one line.
std::string shown(const nlohmann::json& value)
{
    constexpr std::size_t longest = 60;
    if (value.is_object()) {
        return value.empty() ? "an empty object" : "an object";
    }
    if (value.is_array()) {
        return value.empty() ? "an empty list" : "a list";
    }
    std::string text = value.dump();
    if (text.size() > longest) {
        std::size_t end = longest;
        while ((static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) {
            --end; // not in the middle of a character
        }
        text.replace(end, std::string::npos, value.is_string() ? "...\"" : "...");
    }
    return text;
}

std::string escaped(std::string_view key)
{
    std::string segment;
    for (const char c : key) {
        segment += c == '~' ? "~0" : c == '/' ? "~1" : std::string(1, c);
    }
    return segment;
}

} // namespace

JsonNode::JsonNode(std::shared_ptr<const JsonDocument> document, const nlohmann::json& value, std::string path)
    : m_document(std::move(document)), m_value(&value), m_path(std::move(path))
{}

JsonNode JsonNode::child(const std::string& segment, const nlohmann::json& value) const
{
    return {m_document, value, m_path + "/" + segment};
}

bool JsonNode::isObject() const { return m_value->is_object(); }
bool JsonNode::isList() const { return m_value->is_array(); }
bool JsonNode::isString() const { return m_value->is_string(); }
bool JsonNode::isNumber() const { return m_value->is_number(); }

void JsonNode::expectKeys(std::initializer_list<std::string_view> known) const
{
    for (const std::string& key : keys()) {
        if (std::find(known.begin(), known.end(), key) == known.end()) {
            failUnknownKey(key, std::vector<std::string>(known.begin(), known.end()));
        }
    }
}

void JsonNode::failUnknownKey(std::string_view key, const std::vector<std::string>& known) const
{
    throw JsonError(m_document->place(m_path + "/" + escaped(key), JsonDocument::At::Key) + "there is no key " +
                    inQuotes(key) + " here" + hintForName(key, known));
}

std::vector<std::string> JsonNode::keys() const
{
    if (!isObject()) {
        failExpected("an object");
    }
    std::vector<std::string> keys;
    for (const auto& [key, value] : m_value->items()) {
        keys.push_back(key);
    }
    return keys;
}

std::optional<JsonNode> JsonNode::find(std::string_view key) const
{
    if (!isObject()) {
        failExpected("an object");
    }
    const auto found = m_value->find(key);
    return found == m_value->end() ? std::nullopt : std::optional(child(escaped(key), *found));
}

JsonNode JsonNode::member(std::string_view key) const
{
    if (std::optional<JsonNode> found = find(key)) {
        return *std::move(found);
    }
    failExpected("an object with the key \"" + std::string(key) + "\"");
}

std::vector<JsonNode> JsonNode::items() const
{
    if (!isList()) {
        failExpected("a list");
    }
    std::vector<JsonNode> items;
    items.reserve(m_value->size());
    for (const nlohmann::json& item : *m_value) {
        items.push_back(child(std::to_string(items.size()), item));
    }
    return items;
}

std::string JsonNode::string() const
{
    if (!isString()) {
        failExpected("a string");
    }
    return m_value->get<std::string>();
}

bool JsonNode::boolean() const
{
    if (!m_value->is_boolean()) {
        failExpected("true or false");
    }
    return m_value->get<bool>();
}

double JsonNode::number() const
{
    if (!isNumber()) {
        failExpected("a number");
    }
    return m_value->get<double>();
}

std::int32_t JsonNode::integer() const
{
    constexpr std::int64_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
    const bool isSmall = m_value->is_number_unsigned() ? m_value->get<std::uint64_t>() <= std::uint64_t{most}
                         : m_value->is_number_integer()
                             ? m_value->get<std::int64_t>() >= least && m_value->get<std::int64_t>() <= most
                             : false;
    if (!isSmall) {
        failExpected("a whole number from -2147483648 to 2147483647");
    }
    return m_value->get<std::int32_t>();
}

std::size_t JsonNode::oneOf(const std::vector<std::string>& names, std::string_view expected) const
{
    const std::string name = string();
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        failUnknown(expected, names);
    }
    return static_cast<std::size_t>(found - names.begin());
}

void JsonNode::failExpected(std::string_view expected) const
{
    fail("read " + shown(*m_value) + ", expected " + std::string(expected) + ".");
}

void JsonNode::failUnknown(std::string_view expected, const std::vector<std::string>& known) const
{
    const std::string hint = isString() ? hintForName(m_value->get_ref<const std::string&>(), known) : ".";
    fail("read " + shown(*m_value) + ", expected " + std::string(expected) + hint);
}

void JsonNode::fail(std::string_view sentence) const
{
    throw JsonError(m_document->place(m_path, JsonDocument::At::Value) + std::string(sentence));
}

} // namespace gtm::support
