#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace gtm::support {

/// Finds places in the text of a JSON document. The text must be valid JSON at least as far as the
/// place that is asked for; the scanner checks nothing.
class JsonScanner {
public:
    explicit JsonScanner(std::string_view text) : m_text(text) {}

    struct Offsets {
        std::size_t key = 0; ///< of the key in front of the value, or of the value where there is none
        std::size_t value = 0;
    };

    /// The value at a JSON pointer that exists in the document.
    Offsets find(std::string_view pointer);

    /// Calls `visit` for every value in the text, each before those in it.
    void walk(const std::function<void(const std::string& pointer, std::size_t offset)>& visit);

    /// The `number`-th key in the text, counted from 1.
    std::size_t findKey(std::size_t number);

private:
    Offsets enter(std::string_view segment);
    std::string_view readString();

    /// Reads a key and what stands between it and its value.
    std::string readKey();
    void skipValue();
    void skipBlanks();

    std::string_view m_text;
    std::size_t m_at = 0;
};

} // namespace gtm::support
