#include "apps/Output.h"

#include "apps/Pager.h"

#include <ostream>

namespace physics::apps {
namespace {

constexpr std::string_view bold = "\x1B[1m";
constexpr std::string_view red = "\x1B[31m";
constexpr std::string_view yellow = "\x1B[33m";
constexpr std::string_view plain = "\x1B[0m";

void write(std::ostream& stream, std::string_view color, std::string_view text, bool isColored)
{
    if (isColored) {
        stream << color << text << plain << '\n';
    } else {
        stream << text << '\n';
    }
}

} // namespace

void Output::heading(std::string_view text) { write(m_out, bold, text, m_isOutColored); }

void Output::complain(std::string_view line) { write(m_err, red, line, m_isErrColored); }

void Output::note(std::string_view line) { write(m_err, yellow, line, m_isErrColored); }

void Output::page(const std::string& text)
{
    m_out.flush();
    if (m_pager.empty() || !showThrough(m_pager, text)) {
        m_out << text;
    }
}

} // namespace physics::apps
