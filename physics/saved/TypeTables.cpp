// The type tables in a saved text: writer beside reader.

#include "physics/TypeManager.h"

#include "physics/saved/TextReader.h"
#include "physics/saved/TextWriter.h"

#include <initializer_list>

namespace physics {
namespace {

/// Walks the numbers of one line; what is missing at its end counts as 0 and ends the walk.
class Numbers {
public:
    explicit Numbers(std::vector<int> values) : m_values(std::move(values)) {}
    bool hasMore() const { return m_next < m_values.size(); }
    int next() { return hasMore() ? m_values[m_next++] : 0; }

private:
    std::vector<int> m_values;
    std::size_t m_next = 0;
};

Numbers lineOf(TextReader& reader, const char* label)
{
    int size = 0;
    reader.integer(label, size);
    std::vector<int> values;
    for (int i = 0; i < size && !reader.hasFailed(); ++i)
        reader.integer(label, values.emplace_back());
    return Numbers(std::move(values));
}

/// Reads a count and that many lines; a count below 1 is an empty block.
template <class Decode>
void readBlock(TextReader& reader, const char* label, Decode decode)
{
    int count = 0;
    reader.integer(label, count);
    for (int i = 0; i < count && !reader.hasFailed(); ++i) {
        Numbers numbers = lineOf(reader, label);
        if (numbers.hasMore())
            decode(numbers);
    }
}

template <class Types>
std::vector<int> numbersOf(const Types& types)
{
    std::vector<int> numbers;
    for (const auto type : types)
        numbers.push_back(static_cast<int>(type));
    return numbers;
}

void append(std::vector<int>& line, const std::vector<int>& more) { line.insert(line.end(), more.begin(), more.end()); }

void writeCount(TextWriter& writer, std::size_t count)
{
    writer.count("", count);
    writer.endLine();
}

/// One line for each key: the key, then the boundary types under it.
template <class Keys, class Map>
void writeKeyedLines(TextWriter& writer, const Keys& keys, const Map& map)
{
    writeCount(writer, keys.size());
    for (const auto key : keys) {
        std::vector<int> line = {static_cast<int>(key)};
        const auto types = map.find(key);
        if (types != map.end())
            append(line, numbersOf(types->second));
        writer.idList("", line);
    }
}

} // namespace

void TypeManager::serialise(TextWriter& writer) const
{
    writeCount(writer, 0); // the format number
    writeKeyedLines(writer, m_volumeTypes, m_volumeBoundaryTypes);

    writeCount(writer, m_interfaceTypes.size());
    for (const InterfaceType interfaceType : m_interfaceTypes) {
        std::vector<int> line = {static_cast<int>(interfaceType), 0};
        for (const auto& [key, boundaryTypes] : m_interfaceBoundaryTypes) {
            if (key.first != interfaceType)
                continue;
            ++line[1]; // the number of groups
            append(line, {static_cast<int>(key.second), static_cast<int>(boundaryTypes.size())});
            append(line, numbersOf(boundaryTypes));
        }
        writer.idList("", line);
    }

    writeKeyedLines(writer, m_shellTypes, m_shellBoundaryTypes);
    writer.idList("", numbersOf(m_threadTypes));

    // Each volume type twice, in place of the volume type and its default. Readers in the field expect it,
    // so a set-up that was saved and restored has other defaults than a new one.
    std::vector<int> defaults;
    for (const auto& entry : m_defaultBoundaryTypes)
        append(defaults, {static_cast<int>(entry.first), static_cast<int>(entry.first)});
    writer.idList("", defaults);
}

/// Values are stored as read, also those outside the enumerations. That the text ends too early or holds
/// something else than numbers is noted by the reader.
void TypeManager::restore(TextReader& reader)
{
    clear();
    int formatNumber = 0;
    reader.integer("the format number of the type tables", formatNumber);

    readBlock(reader, "the boundary types of a volume type", [this](Numbers& line) {
        const VolumeType volumeType{line.next()};
        m_volumeTypes.insert(volumeType);
        BoundaryTypes& boundaryTypes = m_volumeBoundaryTypes[volumeType];
        while (line.hasMore())
            boundaryTypes.insert(BoundaryType(line.next()));
    });
    readBlock(reader, "the boundary types of an interface type", [this](Numbers& line) {
        const InterfaceType interfaceType{line.next()};
        m_interfaceTypes.insert(interfaceType);
        for (int groups = line.next(); groups > 0 && line.hasMore(); --groups) {
            BoundaryTypes& boundaryTypes = m_interfaceBoundaryTypes[{interfaceType, VolumeType(line.next())}];
            for (int count = line.next(); count > 0 && line.hasMore(); --count)
                boundaryTypes.insert(BoundaryType(line.next()));
        }
    });
    readBlock(reader, "the boundary types of a shell type", [this](Numbers& line) {
        const ShellType shellType{line.next()};
        m_shellTypes.insert(shellType);
        BoundaryTypes& boundaryTypes = m_shellBoundaryTypes[shellType];
        while (line.hasMore())
            boundaryTypes.insert(BoundaryType(line.next()));
    });
    buildSecondaryMaps();

    Numbers threadTypes = lineOf(reader, "the thread types");
    while (threadTypes.hasMore())
        m_threadTypes.insert(ThreadType(threadTypes.next()));

    Numbers defaults = lineOf(reader, "the default boundary types");
    while (defaults.hasMore()) {
        const VolumeType volumeType{defaults.next()};
        if (defaults.hasMore())
            m_defaultBoundaryTypes[volumeType] = BoundaryType(defaults.next());
    }
}

void TextWriter::typeTables(const TypeManager& types) { types.serialise(*this); }
void TextReader::typeTables(TypeManager& types) { types.restore(*this); }

} // namespace physics
