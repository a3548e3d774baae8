#include "apps/check/CheckReport.h"
#include "apps/check/CheckViews.h"

#include <nlohmann/json.hpp>

#include <string_view>

namespace physics::apps {
namespace {

using Json = nlohmann::ordered_json;

/// A file name as a URI: relative unless the name is absolute.
std::string toUri(const std::string& file)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    constexpr std::string_view plain = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~/";
    std::string uri = file.rfind('/', 0) == 0 ? "file://" : "";
    for (const char c : file) {
        if (plain.find(c) != std::string_view::npos) {
            uri += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            uri += {'%', digits[byte / 16], digits[byte % 16]};
        }
    }
    return uri;
}

Json rules()
{
    Json rules = Json::array();
    for (const FindingRow& row : allFindingKinds()) {
        const std::string explanation = explanationOf(std::string(row.id));
        rules.push_back({{"id", row.id},
                         {"shortDescription", {{"text", std::string(row.title) + "."}}},
                         {"help", {{"text", explanation}, {"markdown", explanation}}},
                         {"defaultConfiguration", {{"level", wordFor(row.severity)}}}});
    }
    return rules;
}

Json locationOf(const Finding& finding, const CheckReport& report)
{
    Json location = {
        {"physicalLocation", {{"artifactLocation", {{"uri", toUri(report.file)}}}}},
        {"logicalLocations", {{{"fullyQualifiedName", finding.subject.name}, {"kind", finding.subject.type}}}}};
    if (const auto place = report.places.find(finding.subject)) {
        location["physicalLocation"]["region"] = {{"startLine", place->line}, {"startColumn", place->column}};
    }
    return location;
}

Json resultOf(const Finding& finding, const CheckReport& report)
{
    const FindingRow& row = rowOf(finding.kind);
    Json result = {{"ruleId", row.id},
                   {"ruleIndex", static_cast<std::size_t>(finding.kind)},
                   {"level", wordFor(row.severity)},
                   {"message", {{"text", finding.message}}},
                   {"locations", {locationOf(finding, report)}},
                   {"properties", Json::object()}};
    for (const auto& [what, names] : finding.details) {
        result["properties"][what] = names;
    }
    return result;
}

} // namespace

std::string toSarif(const CheckReport& report)
{
    Json results = Json::array();
    for (const Finding* finding : report.findings()) {
        results.push_back(resultOf(*finding, report));
    }
    const Json driver = {{"name", "physics-case"}, {"rules", rules()}};
    const Json run = {{"tool", {{"driver", driver}}}, {"columnKind", "unicodeCodePoints"}, {"results", results}};
    const Json log = {{"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
                      {"version", "2.1.0"},
                      {"runs", Json::array({run})}};
    return log.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace physics::apps
