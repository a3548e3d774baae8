#include "physics/saved/TextWriter.h"

#include <charconv>

namespace physics {

void TextWriter::appendNumber(std::int64_t value)
{
    char digits[24];
    const std::to_chars_result result = std::to_chars(digits, digits + sizeof digits, value);
    m_text.append(digits, result.ptr);
}

} // namespace physics
