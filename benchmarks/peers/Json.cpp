// nlohmann-json: as a tree of values, then as compact text.

#include "benchmarks/peers/Peer.h"

#include <nlohmann/json.hpp>

namespace peers {

// Found by the library through the arguments.
template <Described T>
void to_json(nlohmann::json& node, const T& object)
{
    T::fields(object, [&](const char* name, const auto& field) { node[name] = field; });
}

template <Described T>
void from_json(const nlohmann::json& node, T& object)
{
    T::fields(object, [&](const char* name, auto& field) { node.at(name).get_to(field); });
}

namespace {

class Json final : public PlainPeer {
public:
    std::string name() const override { return "nlohmann-json"; }
    bool writesText() const override { return true; }
    std::string write() const override { return nlohmann::json(m_graph).dump(); }
    void read(const std::string& written) override { m_graph = nlohmann::json::parse(written).get<Graph>(); }
};

} // namespace

std::unique_ptr<Peer> json() { return std::make_unique<Json>(); }

} // namespace peers
