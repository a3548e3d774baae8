// The streams of the standard library, as one writes such code by hand: numbers with blanks between them,
// texts on lines of their own, lists behind their lengths.

#include "benchmarks/peers/Peer.h"

#include <istream>
#include <ostream>
#include <sstream>

namespace peers {
namespace {

class Writer {
public:
    explicit Writer(std::ostream& stream) : m_stream(stream) {}

    void put(int number) { m_stream << number << ' '; }
    void put(bool flag) { m_stream << flag << ' '; }
    void put(const std::string& text) { m_stream << text << '\n'; }

    template <class T>
    void put(const std::vector<T>& list)
    {
        m_stream << list.size() << ' ';
        for (const T& element : list)
            put(element);
    }

    template <Described T>
    void put(const T& object)
    {
        T::fields(object, [this](const char*, const auto& field) { put(field); });
        m_stream << '\n';
    }

private:
    std::ostream& m_stream;
};

class Reader {
public:
    explicit Reader(std::istream& stream) : m_stream(stream) {}

    void get(int& number) { m_stream >> number; }
    void get(bool& flag) { m_stream >> flag; }
    void get(std::string& text) { std::getline(m_stream >> std::ws, text); }

    template <class T>
    void get(std::vector<T>& list)
    {
        std::size_t size = 0;
        m_stream >> size;
        list.resize(size);
        for (T& element : list)
            get(element);
    }

    template <Described T>
    void get(T& object)
    {
        T::fields(object, [this](const char*, auto& field) { get(field); });
    }

private:
    std::istream& m_stream;
};

class Streams final : public PlainPeer {
public:
    std::string name() const override { return "streams of the standard library"; }
    bool writesText() const override { return true; }

    std::string write() const override
    {
        std::ostringstream stream;
        Writer(stream).put(m_graph);
        return std::move(stream).str();
    }

    void read(const std::string& written) override
    {
        std::istringstream stream(written);
        Graph graph;
        Reader(stream).get(graph);
        m_graph = std::move(graph);
    }
};

} // namespace

std::unique_ptr<Peer> streams() { return std::make_unique<Streams>(); }

} // namespace peers
