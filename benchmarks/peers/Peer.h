#pragma once

#include "benchmarks/peers/Graph.h"

#include <memory>
#include <string>
#include <vector>

namespace peers {

/// Another way to write the data of a set-up and to read it back. It holds the data in the form that is
/// the easiest for it, and is not asked to make objects with indexes of it, nor to check anything.
class Peer {
public:
    virtual ~Peer() = default;

    virtual std::string name() const = 0;

    /// Whether people can read what it writes.
    virtual bool writesText() const = 0;

    virtual void take(const Graph& graph) = 0;
    virtual Graph graph() const = 0;

    virtual std::string write() const = 0;

    /// Replaces what it holds.
    virtual void read(const std::string& written) = 0;
};

/// A peer that writes and reads the plain structs themselves.
class PlainPeer : public Peer {
public:
    void take(const Graph& graph) override { m_graph = graph; }
    Graph graph() const override { return m_graph; }

protected:
    Graph m_graph;
};

std::unique_ptr<Peer> boostText();
std::unique_ptr<Peer> boostBinary();
std::unique_ptr<Peer> cereal();
std::unique_ptr<Peer> json();
std::unique_ptr<Peer> protobuf();
std::unique_ptr<Peer> streams();

} // namespace peers
