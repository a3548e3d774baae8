#include "locationmodel/LocationText.h"

#include "locationmodel/ModelTopology.h"

#include <cstddef>

namespace gtm::bundled {
namespace {

constexpr std::string_view blanks = " \t\r\n";

/// Cuts the next term off the front of `rest`: up to the next comma outside quotes.
std::string_view cutTerm(std::string_view& rest)
{
    bool isQuoted = false;
    std::size_t end = 0;
    while (end < rest.size() && (isQuoted || rest[end] != ',')) {
        isQuoted = isQuoted != (rest[end] == '"');
        ++end;
    }
    const std::string_view term = rest.substr(0, end);
    rest.remove_prefix(end);
    return term;
}

/// Reads the tokens of a term; false when a quote stays open. Inside quotes two quotes stand for one.
bool readPattern(std::string_view text, Pattern& pattern)
{
    bool isQuoted = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '"' && isQuoted && i + 1 < text.size() && text[i + 1] == '"') {
            pattern.add(Pattern::Kind::Literal, text[++i]);
        } else if (c == '"') {
            isQuoted = !isQuoted;
        } else if (isQuoted) {
            pattern.add(Pattern::Kind::Literal, c);
        } else {
            pattern.add(c == '*'   ? Pattern::Kind::AnyRun
                        : c == '?' ? Pattern::Kind::AnyOne
                        : c == '/' ? Pattern::Kind::Separator
                                   : Pattern::Kind::Literal,
                        c);
        }
    }
    return !isQuoted;
}

LocationTerm readTerm(std::string_view text)
{
    LocationTerm term;
    text = trimmed(text);
    if (!text.empty() && text.front() == '!') {
        term.takesAway = true;
        text = trimmed(text.substr(1));
    }
    term.text = text;
    if (!readPattern(text, term.pattern)) {
        term.problem = "The term '" + term.text + "' has an opening quote without a closing one.";
    } else if (term.pattern.isEmpty()) {
        term.problem = "The location has an empty term; take the extra comma, \"!\" or pair of quotes away.";
    }
    return term;
}

} // namespace

std::vector<LocationTerm> readLocation(std::string_view text)
{
    std::vector<LocationTerm> terms;
    if (trimmed(text).empty()) {
        return terms;
    }
    terms.push_back(readTerm(cutTerm(text)));
    while (!text.empty()) {
        text.remove_prefix(1); // the comma
        terms.push_back(readTerm(cutTerm(text)));
    }
    return terms;
}

std::vector<LocationTerm> listLocation(const std::vector<Region*>& regions, const ModelTopology& topology)
{
    std::vector<LocationTerm> terms;
    for (Region* region : regions) {
        if (region == nullptr) {
            continue;
        }
        LocationTerm& term = terms.emplace_back();
        term.text = region->id();
        if (infoOf(*region).topology == &topology) {
            term.region = region;
        } else {
            term.problem = "The region \"" + term.text + "\" belongs to another location model.";
        }
    }
    return terms;
}

Region* findNamed(const LocationTerm& term, const ModelTopology& topology)
{
    if (term.region != nullptr || term.pattern.hasWildcard()) {
        return term.region;
    }
    return topology.find(term.pattern.literalPrefix());
}

std::string quotedId(std::string_view id)
{
    if (id.find_first_of("*?\"!") == std::string_view::npos) {
        return std::string(id);
    }
    std::string text = "\"";
    for (const char c : id) {
        text += c == '"' ? "\"\"" : std::string(1, c);
    }
    return text + '"';
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

} // namespace gtm::bundled
