#include "apps/ReadInChild.h"

#include "apps/ChildProcess.h"
#include "apps/InputError.h"

#include <nlohmann/json.hpp>

#include <exception>

namespace physics::apps {
namespace {

using nlohmann::json;

std::string answerOf(const std::function<TopologyText()>& read)
{
    json answer;
    try {
        const TopologyText reading = read();
        answer = {{"topology", reading.topology}, {"notes", reading.notes}, {"renamed", reading.renamed}};
    } catch (const std::exception& error) {
        answer = {{"error", error.what()}};
    }
    return answer.dump(-1, ' ', false, json::error_handler_t::replace);
}

} // namespace

TopologyText readInChild(const std::string& file, const std::string& library, const std::function<TopologyText()>& read)
{
    json answer;
    try {
        answer = json::parse(answerOfChild([&read] { return answerOf(read); }));
    } catch (const ChildDied& how) {
        throw InputError(file + ": " + library + " broke down over this file (" + how.what() +
                         "), so it is probably damaged; copy or export it again.");
    }
    if (answer.contains("error")) {
        throw InputError(answer["error"].get<std::string>());
    }
    return {answer["topology"].get<std::string>(), answer["notes"].get<std::vector<std::string>>(),
            answer["renamed"].get<std::map<std::string, std::string>>()};
}

} // namespace physics::apps
