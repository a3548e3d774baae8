#include "apps/ReadInChild.h"

#include "apps/ChildProcess.h"
#include "apps/InputError.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <exception>

namespace physics::apps {
namespace {

using nlohmann::json;

json toJson(const TopologyText& reading)
{
    json answer = {{"topology", reading.topology}, {"notes", reading.notes},      {"renamed", reading.renamed},
                   {"zones", json::array()},       {"conditions", json::array()}, {"periodics", json::array()}};
    for (const auto& [body, name, family] : reading.zones) {
        answer["zones"].push_back({body, name, family});
    }
    for (const auto& [face, type, family, name] : reading.conditions) {
        answer["conditions"].push_back({face, type, family, name});
    }
    for (const auto& [name, first, second, kind, centre, angle, translation] : reading.periodics) {
        answer["periodics"].push_back({name, first, second, kind, centre, angle, translation});
    }
    return answer;
}

TopologyText fromJson(const json& answer)
{
    TopologyText reading{answer["topology"], answer["notes"], answer["renamed"]};
    for (const json& zone : answer["zones"]) {
        reading.zones.push_back({zone[0], zone[1], zone[2]});
    }
    for (const json& condition : answer["conditions"]) {
        reading.conditions.push_back({condition[0], condition[1], condition[2], condition[3]});
    }
    for (const json& pair : answer["periodics"]) {
        reading.periodics.push_back({pair[0], pair[1], pair[2], pair[3], pair[4], pair[5], pair[6]});
    }
    return reading;
}

/// In a binary form, which keeps every name and number as it is.
std::string answerOf(const std::function<TopologyText()>& read)
{
    json answer;
    try {
        answer = toJson(read());
    } catch (const std::exception& error) {
        answer = {{"error", error.what()}};
    }
    const std::vector<std::uint8_t> bytes = json::to_cbor(answer);
    return std::string(bytes.begin(), bytes.end());
}

} // namespace

TopologyText readInChild(const std::string& file, const std::string& library, const std::function<TopologyText()>& read)
{
    json answer;
    try {
        answer = json::from_cbor(answerOfChild([&read] { return answerOf(read); }));
    } catch (const ChildDied& how) {
        throw InputError(file + ": " + library + " broke down over this file (" + how.what() +
                         "), so it is probably damaged; copy or export it again.");
    }
    if (answer.contains("error")) {
        throw InputError(answer["error"].get<std::string>());
    }
    return fromJson(answer);
}

} // namespace physics::apps
