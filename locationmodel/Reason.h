#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace gtm::bundled {

class ModelTopology;

/// Why something is not valid, for people. The search for a similar name waits until the text is asked
/// for, because it walks all ids.
class Reason {
public:
    Reason() = default;

    /// A whole sentence.
    explicit Reason(std::string sentence) : m_sentence(std::move(sentence)) {}

    /// A sentence without its full stop about a name that is the id of nothing.
    static Reason unknown(std::string sentence, std::string name, const ModelTopology& topology, bool ofSurface);

    /// The sentence; empty when there is no reason.
    std::string text() const;

    /// The number of the state for which something was refused; 0 when nothing was.
    std::int32_t refusedState() const { return m_refusedState; }
    void setRefusedState(std::int32_t state) { m_refusedState = state; }

private:
    std::string m_sentence;
    std::string m_unknown;
    const ModelTopology* m_topology = nullptr; ///< null when there is no unknown name
    bool m_isOfSurface = false;
    std::int32_t m_refusedState = 0;
};

} // namespace gtm::bundled
