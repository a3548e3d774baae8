#pragma once

#include <nlohmann/json_fwd.hpp>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gtm::support {

class JsonDocument;

/// One value of a JSON document together with the way to it. The members that read throw `JsonError`
/// when the value is not of the kind asked for; the message says where it stands and what was read.
class JsonNode {
public:
    /// The JSON pointer of the value, such as "/faces/3/id"; empty for the whole document.
    const std::string& path() const { return m_path; }
    const nlohmann::json& value() const { return *m_value; }

    bool isObject() const;
    bool isList() const;
    bool isString() const;
    bool isNumber() const;

    /// An object. Refuses the first key that is not in `known`, with the nearest one that is.
    void expectKeys(std::initializer_list<std::string_view> known) const;

    /// Refuse one key of the object, for a reader that looks at all keys before it gives up.
    [[noreturn]] void failUnknownKey(std::string_view key, const std::vector<std::string>& known) const;

    /// The keys of an object in byte order.
    std::vector<std::string> keys() const;

    /// The member of an object. `find` gives nothing when it is absent, `member` refuses.
    std::optional<JsonNode> find(std::string_view key) const;
    JsonNode member(std::string_view key) const;

    /// The values of a list in their order.
    std::vector<JsonNode> items() const;

    std::string string() const;
    bool boolean() const;
    double number() const;

    /// A whole number without fraction or exponent, within 32 bits.
    std::int32_t integer() const;

    /// A string that is one of `names`: its place there. `expected` says in a message what they are.
    std::size_t oneOf(const std::vector<std::string>& names, std::string_view expected) const;

    /// Refuse the value: "read X, expected Y", where `expected` is Y, a phrase without a full stop.
    [[noreturn]] void failExpected(std::string_view expected) const;

    /// Refuse a name: the same with a hint to the nearest of `known`.
    [[noreturn]] void failUnknown(std::string_view expected, const std::vector<std::string>& known) const;

    /// Refuse with words of the caller's own behind the place.
    [[noreturn]] void fail(std::string_view sentence) const;

private:
    friend class JsonSource;

    JsonNode(std::shared_ptr<const JsonDocument> document, const nlohmann::json& value, std::string path);

    JsonNode child(const std::string& segment, const nlohmann::json& value) const;

    std::shared_ptr<const JsonDocument> m_document;
    const nlohmann::json* m_value;
    std::string m_path;
};

} // namespace gtm::support
