#include "physics/ThreadBundle.h"

#include "physics/Peek.h"
#include "physics/TypeNames.h"
#include "physics/report/Blocks.h"
#include "physics/report/ListWriter.h"
#include "physics/report/Words.h"

#include <ostream>

namespace physics {

void appendDomainsAndZones(std::string& text, const ThreadBundle& bundle, std::string_view prefix, std::size_t column)
{
    ListFormat format;
    format.prefix = prefix;
    format.endsLine = false;
    format.column = column;
    format.brackets = Brackets::Square;
    appendList(text, "", inWords(bundle.domainIds()), format);

    const std::size_t endOfLine = text.rfind('\n');
    const std::size_t start = endOfLine == std::string::npos ? 0 : endOfLine + 1;
    format.column = text.size() - start - prefix.size();
    if (format.column >= format.width)
        format.width = format.column + 30; // else each zone would have a line of its own
    format.brackets = bundle.hasOwnZones() ? Brackets::BracesWithStar : Brackets::Braces;
    appendList(text, " ", inWords(Peek::zoneIds(bundle)), format);
}

void appendBundle(std::string& text, const ThreadBundle& bundle, std::string_view prefix)
{
    const std::string start =
        inWords(bundle.index()) + ": " + inWords(bundle.threadId()) + ' ' + displayName(bundle.threadType()) + ' ';
    text.append(prefix).append(start);
    appendDomainsAndZones(text, bundle, prefix, start.size());
    text += '\n';
}

void ThreadBundle::dump(std::ostream& stream, const std::string& prefix) const
{
    std::string text;
    appendBundle(text, *this, prefix);
    writeOut(stream, text);
}

} // namespace physics
