// Boost.Serialization, through the archive that people can read and the one that they cannot.

#include "benchmarks/peers/Peer.h"

#include <boost/archive/binary_iarchive.hpp>
#include <boost/archive/binary_oarchive.hpp>
#include <boost/archive/text_iarchive.hpp>
#include <boost/archive/text_oarchive.hpp>
#include <boost/serialization/string.hpp>
#include <boost/serialization/vector.hpp>

#include <sstream>

namespace peers {

// Found by the library through the arguments.
template <class Archive, Described T>
void serialize(Archive& archive, T& object, unsigned /*version*/)
{
    T::fields(object, [&](const char*, auto& field) { archive& field; });
}

namespace {

template <class Output, class Input>
class Boost final : public PlainPeer {
public:
    Boost(std::string name, bool writesText) : m_name(std::move(name)), m_writesText(writesText) {}

    std::string name() const override { return m_name; }
    bool writesText() const override { return m_writesText; }

    std::string write() const override
    {
        std::ostringstream stream;
        Output(stream) << m_graph;
        return std::move(stream).str();
    }

    void read(const std::string& written) override
    {
        std::istringstream stream(written);
        Graph graph;
        Input(stream) >> graph;
        m_graph = std::move(graph);
    }

private:
    std::string m_name;
    bool m_writesText;
};

} // namespace

std::unique_ptr<Peer> boostText()
{
    using namespace boost::archive;
    return std::make_unique<Boost<text_oarchive, text_iarchive>>("Boost.Serialization, text", true);
}

std::unique_ptr<Peer> boostBinary()
{
    using namespace boost::archive;
    return std::make_unique<Boost<binary_oarchive, binary_iarchive>>("Boost.Serialization, binary", false);
}

} // namespace peers
