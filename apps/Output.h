#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>

namespace physics::apps {

/// Where a verb writes: results to `out`, complaints and notes to `err`. Colours only where they are on.
class Output {
public:
    /// Colours are for terminals: the caller knows.
    Output(std::ostream& out, std::ostream& err, bool isOutColored, bool isErrColored)
        : m_out(out), m_err(err), m_isOutColored(isOutColored), m_isErrColored(isErrColored)
    {}

    std::ostream& out() { return m_out; }

    /// Makes a command of the shell show what is paged; an empty one, as at first, shows nothing.
    void setPager(std::string command) { m_pager = std::move(command); }

    /// Progress is for terminals too: where it is shown, at first nowhere.
    void showProgress() { m_isProgressShown = true; }

    /// The stream for lines of progress, or null where none are shown.
    std::ostream* progress() { return m_isProgressShown ? &m_err : nullptr; }

    /// Writes a result that may be longer than a screen: through the pager where there is one.
    void page(const std::string& text);

    /// A heading of a result.
    void heading(std::string_view text);

    /// One line about something wrong, or about something to know.
    void complain(std::string_view line);
    void note(std::string_view line);

private:
    std::ostream& m_out;
    std::ostream& m_err;
    bool m_isOutColored;
    bool m_isErrColored;
    bool m_isProgressShown = false;
    std::string m_pager;
};

} // namespace physics::apps
