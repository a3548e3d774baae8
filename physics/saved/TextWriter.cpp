#include "physics/saved/TextWriter.h"

namespace physics {

void TextWriter::grow(std::size_t noOfCharacters)
{
    const auto written = static_cast<std::size_t>(m_next - m_begin.get());
    const std::size_t size = std::max(2 * written, written + noOfCharacters + 4096);
    std::unique_ptr<char[]> larger(new char[size]);
    m_next = std::copy(m_begin.get(), m_next, larger.get());
    m_begin = std::move(larger);
    m_end = m_begin.get() + size;
}

} // namespace physics
