#include "support/JsonDocument.h"

#include "support/InQuotes.h"
#include "support/JsonScanner.h"
#include "support/JsonSource.h"

#include <utility>
#include <vector>

namespace gtm::support {
namespace {

/// A pointer as a message shows it: the keys in it may hold anything.
std::string onOneLine(std::string_view pointer)
{
    const std::string literal = inQuotes(pointer);
    return literal.substr(1, literal.size() - 2);
}

/// The position behind a piece of text that begins at `from`.
JsonPosition advanced(JsonPosition from, std::string_view piece)
{
    for (const char c : piece) {
        const bool goesOn = (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; // a character begun before
        if (c == '\n') {
            from = {from.line + 1, 1};
        } else if (!goesOn) {
            ++from.column;
        }
    }
    return from;
}

} // namespace

/// Builds the document from the parser's events, because only they tell of a key that comes twice.
class JsonDocument::Parser : public nlohmann::json_sax<nlohmann::json> {
public:
    explicit Parser(JsonDocument& document) : m_document(document) {}

    bool null() override { return add(nullptr); }
    bool boolean(bool value) override { return add(value); }
    bool number_integer(number_integer_t value) override { return add(value); }
    bool number_unsigned(number_unsigned_t value) override { return add(value); }
    bool number_float(number_float_t value, const string_t&) override { return add(value); }
    bool string(string_t& value) override { return add(std::move(value)); }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return open(nlohmann::json::object()); }
    bool start_array(std::size_t) override { return open(nlohmann::json::array()); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }

    bool key(string_t& key) override
    {
        ++m_noOfKeys;
        const auto [member, isNew] = m_open.back()->get_ref<nlohmann::json::object_t&>().emplace(key, nullptr);
        if (!isNew) {
            const std::size_t offset = JsonScanner(m_document.m_text).findKey(m_noOfKeys);
            throw JsonError(m_document.prefix(offset) + "the key " + inQuotes(key) +
                            " stands twice in one object; leave only one of them.");
        }
        m_member = &member->second;
        return true;
    }

    bool parse_error(std::size_t position, const std::string&, const nlohmann::json::exception& error) override
    {
        const std::size_t offset = position == 0 ? 0 : position - 1;
        throw JsonError(m_document.prefix(offset) + "this is not valid JSON: " + reasonAt(offset, error) + ".");
    }

private:
    /// The parser's reason, but for what it calls the end of input and is not.
    std::string reasonAt(std::size_t offset, const nlohmann::json::exception& error) const
    {
        const std::string& text = m_document.m_text;
        if (text.find_first_not_of(" \t\r\n") == std::string::npos) {
            return "there is nothing in it";
        }
        if (offset < text.size() && text[offset] == '\0') {
            return "there is a zero byte";
        }
        // The parser's text begins with "[json.exception...] parse error at line L, column C: ", and it may
        // quote bytes that are no text.
        std::string reason = nlohmann::json::parse(inQuotes(error.what())).get<std::string>();
        reason.erase(0, reason.find("] ") + 2);
        if (reason.rfind("parse error", 0) == 0) {
            reason.erase(0, reason.find(": ") + 2);
        }
        return reason;
    }

    nlohmann::json* place(nlohmann::json value)
    {
        if (m_open.empty()) {
            return &(m_document.m_json = std::move(value));
        }
        if (m_open.back()->is_array()) {
            return &m_open.back()->emplace_back(std::move(value));
        }
        return &(*m_member = std::move(value));
    }

    bool add(nlohmann::json value)
    {
        place(std::move(value));
        return true;
    }

    bool open(nlohmann::json value)
    {
        m_open.push_back(place(std::move(value)));
        return true;
    }

    bool close()
    {
        m_open.pop_back();
        return true;
    }

    JsonDocument& m_document;
    std::vector<nlohmann::json*> m_open;
    nlohmann::json* m_member = nullptr;
    std::size_t m_noOfKeys = 0;
};

JsonDocument::JsonDocument(std::string text, std::string name) : m_text(std::move(text)), m_name(std::move(name))
{
    const std::string_view byteOrderMark = "\xEF\xBB\xBF";
    const auto isMarked = [&] { return m_text.compare(0, byteOrderMark.size(), byteOrderMark) == 0; };
    if (isMarked()) {
        m_text.erase(0, byteOrderMark.size());
    }
    if (isMarked()) { // which the parser would skip without a word, and places would be wrong
        throw JsonError(prefix(0) + "this is not valid JSON: it begins with more than one byte order mark; leave one.");
    }
    Parser parser(*this);
    nlohmann::json::sax_parse(m_text, &parser);
}

std::string JsonDocument::place(std::string_view pointer, At at) const
{
    const JsonScanner::Offsets offsets = JsonScanner(m_text).find(pointer);
    return prefix(at == At::Key ? offsets.key : offsets.value) + "at " +
           (pointer.empty() ? "the top level" : onOneLine(pointer)) + ": ";
}

std::unordered_map<std::string, JsonPosition> JsonDocument::positions() const
{
    std::unordered_map<std::string, JsonPosition> positions;
    JsonPosition position;
    std::size_t reached = 0;
    JsonScanner(m_text).walk([&](const std::string& pointer, std::size_t offset) {
        position = advanced(position, std::string_view(m_text).substr(reached, offset - reached));
        reached = offset;
        positions.emplace(pointer, position);
    });
    return positions;
}

std::string JsonDocument::prefix(std::size_t offset) const
{
    const JsonPosition position = advanced({}, std::string_view(m_text).substr(0, offset));
    return m_name + ":" + std::to_string(position.line) + ":" + std::to_string(position.column) + ": ";
}

} // namespace gtm::support
