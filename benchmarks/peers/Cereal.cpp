// cereal, through its binary archive.

#include "benchmarks/peers/Peer.h"

#include <cereal/archives/binary.hpp>
#include <cereal/types/string.hpp>
#include <cereal/types/vector.hpp>

#include <sstream>

namespace peers {

// Found by the library through the arguments.
template <class Archive, Described T>
void serialize(Archive& archive, T& object)
{
    T::fields(object, [&](const char*, auto& field) { archive(field); });
}

namespace {

class Cereal final : public PlainPeer {
public:
    std::string name() const override { return "cereal, binary"; }
    bool writesText() const override { return false; }

    std::string write() const override
    {
        std::ostringstream stream;
        ::cereal::BinaryOutputArchive{stream}(m_graph);
        return std::move(stream).str();
    }

    void read(const std::string& written) override
    {
        std::istringstream stream(written);
        Graph graph;
        ::cereal::BinaryInputArchive{stream}(graph);
        m_graph = std::move(graph);
    }
};

} // namespace

std::unique_ptr<Peer> cereal() { return std::make_unique<Cereal>(); }

} // namespace peers
