#include "apps/CaseReader.h"

#include "apps/Complaints.h"
#include "physics/TypeNames.h"
#include "support/JsonNode.h"
#include "support/JsonSource.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <type_traits>

namespace physics::apps {
namespace {

using gtm::support::JsonError;
using gtm::support::JsonNode;

/// What messages call the types of one enumeration.
std::string_view kindOf(VolumeType) { return "a volume type"; }
std::string_view kindOf(BoundaryType) { return "a boundary type"; }
std::string_view kindOf(InterfaceType) { return "an interface type"; }
std::string_view kindOf(ShellType) { return "a shell type"; }
std::string_view kindOf(DomainType) { return "a domain type"; }
std::string_view kindOf(ThreadType) { return "a thread type"; }
std::string_view kindOf(BoundaryTag) { return "a boundary tag"; }
std::string_view kindOf(MeshConnectivity) { return "a mesh connectivity"; }

/// Names are printed in tables and joined by "::".
bool isName(std::string_view text)
{
    const auto isControl = [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; };
    return !text.empty() && std::none_of(text.begin(), text.end(), isControl) &&
           text.find("::") == std::string_view::npos;
}

class Reader {
public:
    explicit Reader(Complaints& complaints) : m_complaints(complaints) {}

    /// Complains when `action` throws, and goes on.
    template <class Action>
    void attempt(const Action& action)
    {
        if (m_complaints.isFull()) {
            return;
        }
        try {
            action();
        } catch (const JsonError& error) {
            m_complaints.add(error.what());
        }
    }

    void read(const JsonNode& node, CaseFile& file);

private:
    using Reading = std::function<void(const JsonNode&)>;

    struct Field {
        std::string_view key;
        Reading read;
        bool isRequired;
    };

    static Field required(std::string_view key, Reading read) { return {key, std::move(read), true}; }
    static Field optional(std::string_view key, Reading read) { return {key, std::move(read), false}; }

    /// Reads an object: every key must be one of the fields, and every required field must be there. True
    /// when nothing in it was complained about.
    bool readObject(const JsonNode& node, const std::vector<Field>& fields);

    template <class T>
    Reading value(T& target)
    {
        return [this, &target](const JsonNode& node) { read(node, target); };
    }
    static Reading name(std::string& target);
    static Reading reference(std::string& target, std::string_view expected);
    static Reading nonNegative(int& target);
    static Reading exactly(std::string_view text);
    static Reading version(int known);
    static Reading onlyTrue();
    static Reading ignoredText();

    /// Refuses an object that has more than one of these keys, or none if one `isRequired`.
    void choose(const JsonNode& node, std::string_view first, std::string_view second, bool isRequired);

    static void read(const JsonNode& node, std::string& target) { target = node.string(); }
    static void read(const JsonNode& node, bool& target) { target = node.boolean(); }
    static void read(const JsonNode& node, int& target) { target = node.integer(); }
    static void read(const JsonNode& node, double& target) { target = node.number(); }

    template <class E, class = std::enable_if_t<std::is_enum_v<E>>>
    void read(const JsonNode& node, E& target);
    template <class T>
    void read(const JsonNode& node, std::optional<T>& target);
    template <class T>
    void read(const JsonNode& node, std::vector<T>& list);
    template <class T, std::size_t size>
    void read(const JsonNode& node, std::array<T, size>& list);

    void read(const JsonNode& node, CaseFile::Geometry& geometry);
    void read(const JsonNode& node, CaseFile::NameInFile& name);
    void read(const JsonNode& node, CaseFile::Location& location);
    void read(const JsonNode& node, CaseFile::Domain& domain);
    void read(const JsonNode& node, CaseFile::Model& model);
    void read(const JsonNode& node, CaseFile::Thread& thread);
    void read(const JsonNode& node, CaseFile::Shell& shell);
    void read(const JsonNode& node, CaseFile::Boundary& boundary);
    void read(const JsonNode& node, CaseFile::Volume& volume);
    void read(const JsonNode& node, CaseFile::Side& side);
    void read(const JsonNode& node, CaseFile::Rotation& rotation);
    void read(const JsonNode& node, CaseFile::Interface& interface);
    void read(const JsonNode& node, CaseFile::Group& group);

    Complaints& m_complaints;
};

bool Reader::readObject(const JsonNode& node, const std::vector<Field>& fields)
{
    const std::size_t before = m_complaints.lines().size();
    std::vector<std::string> known;
    for (const Field& field : fields) {
        known.emplace_back(field.key);
    }
    for (const std::string& key : node.keys()) {
        if (std::find(known.begin(), known.end(), key) == known.end()) {
            attempt([&] { node.failUnknownKey(key, known); });
        }
    }
    for (const Field& field : fields) {
        attempt([&] {
            if (const auto member = field.isRequired ? node.member(field.key) : node.find(field.key)) {
                field.read(*member);
            }
        });
    }
    return m_complaints.lines().size() == before;
}

Reader::Reading Reader::name(std::string& target)
{
    return [&target](const JsonNode& node) {
        if (!isName(node.string())) {
            node.failExpected("a name: not empty, without control characters and without \"::\"");
        }
        target = node.string();
    };
}

Reader::Reading Reader::reference(std::string& target, std::string_view expected)
{
    return [&target, expected](const JsonNode& node) {
        if (node.string().empty()) {
            node.failExpected(expected);
        }
        target = node.string();
    };
}

Reader::Reading Reader::nonNegative(int& target)
{
    return [&target](const JsonNode& node) {
        if (node.integer() < 0) {
            node.failExpected("a whole number from 0 to 2147483647");
        }
        target = node.integer();
    };
}

Reader::Reading Reader::exactly(std::string_view text)
{
    return [text](const JsonNode& node) { node.oneOf({std::string(text)}, "the name of this format"); };
}

Reader::Reading Reader::version(int known)
{
    return [known](const JsonNode& node) {
        if (node.integer() != known) {
            node.failExpected(std::to_string(known) + ", the only version that this program knows");
        }
    };
}

Reader::Reading Reader::onlyTrue()
{
    return [](const JsonNode& node) {
        if (!node.boolean()) {
            node.failExpected("true; leave the key out otherwise");
        }
    };
}

Reader::Reading Reader::ignoredText()
{
    return [](const JsonNode& node) { static_cast<void>(node.string()); };
}

void Reader::choose(const JsonNode& node, std::string_view first, std::string_view second, bool isRequired)
{
    const int noOfKeys = int{node.find(first).has_value()} + int{node.find(second).has_value()};
    if (noOfKeys == 2 || (noOfKeys == 0 && isRequired)) {
        const std::string both = "\"" + std::string(first) + "\" or \"" + std::string(second) + "\"";
        attempt([&] { node.failExpected("an object with " + both + (noOfKeys == 2 ? ", not with both" : "")); });
    }
}

template <class E, class>
void Reader::read(const JsonNode& node, E& target)
{
    std::vector<E> values = enumerators<E>();
    std::vector<std::string> names;
    std::erase_if(values, [](E value) { return displayName(value) == "Unset"; });
    for (const E value : values) {
        names.push_back(displayName(value));
    }
    target = values[node.oneOf(names, kindOf(target))];
}

template <class T>
void Reader::read(const JsonNode& node, std::optional<T>& target)
{
    read(node, target.emplace());
}

template <class T>
void Reader::read(const JsonNode& node, std::vector<T>& list)
{
    if (!node.isList()) {
        list.emplace_back();
    }
    for (const JsonNode& item : node.items()) {
        T& element = list.emplace_back();
        if constexpr (std::is_same_v<T, CaseFile::Thread>) {
            element.index = static_cast<int>(list.size() - 1); // where the file does not say
        }
        attempt([&] { read(item, element); });
    }
}

template <class T, std::size_t size>
void Reader::read(const JsonNode& node, std::array<T, size>& list)
{
    static_assert(size == 2 || size == 3);
    const std::vector<JsonNode> items = node.items();
    if (items.size() != size) {
        const std::string things = std::is_same_v<T, double> ? " numbers" : " sides";
        node.failExpected("a list of " + std::string(size == 2 ? "two" : "three") + things);
    }
    for (std::size_t i = 0; i < size; ++i) {
        attempt([&] { read(items[i], list[i]); });
    }
}

void Reader::read(const JsonNode& node, CaseFile::Geometry& geometry)
{
    geometry.path = node.path();
    const Reading file = reference(geometry.file, "the name of a geometry file");
    if (node.isString()) {
        file(node);
    } else if (node.isObject()) {
        readObject(node, {required("file", file), optional("imprint", value(geometry.reading.imprint)),
                          optional("bodiesAreFamilies", value(geometry.reading.bodiesAreFamilies))});
    } else {
        node.failExpected("the name of a geometry file, or an object with the key \"file\"");
    }
}

void Reader::read(const JsonNode& node, CaseFile::NameInFile& name)
{
    const Reading of = [&name](const JsonNode& kind) {
        static const std::vector<std::string> kinds = {"volume", "boundary", "interface", "region"};
        name.of = kinds[kind.oneOf(kinds, "what has the name")];
    };
    readObject(node, {required("of", of), required("name", reference(name.name, "a name in the case")),
                      required("inFile", value(name.inFile))});
}

void Reader::read(const JsonNode& node, CaseFile::Location& location)
{
    if (node.isString()) {
        location = node.string();
    } else if (node.isList()) {
        read(node, location.emplace<std::vector<std::string>>());
    } else {
        node.failExpected("a location string or a list of region ids");
    }
}

void Reader::read(const JsonNode& node, CaseFile::Domain& domain)
{
    domain.path = node.path();
    if (!readObject(node, {required("id", value(domain.id)), required("type", value(domain.type)),
                           required("name", name(domain.name))})) {
        domain.name.clear(); // its id is not to be relied on
    }
}

void Reader::read(const JsonNode& node, CaseFile::Model& model)
{
    model.path = node.path();
    readObject(node, {required("name", name(model.name)), optional("domains", value(model.domains))});
}

void Reader::read(const JsonNode& node, CaseFile::Thread& thread)
{
    thread.path = node.path();
    if (!readObject(node, {optional("index", nonNegative(thread.index)), required("type", value(thread.type)),
                           required("threadId", nonNegative(thread.threadId)),
                           optional("domains", value(thread.domains)), optional("zones", value(thread.zones))})) {
        thread.type = ThreadType::Unset; // its numbers are not to be relied on
    }
}

void Reader::read(const JsonNode& node, CaseFile::Shell& shell)
{
    shell.path = node.path();
    readObject(node,
               {required("type", value(shell.type)), optional("model", reference(shell.model, "the name of a model")),
                optional("threads", value(shell.threads))});
}

void Reader::read(const JsonNode& node, CaseFile::Boundary& boundary)
{
    boundary.path = node.path();
    readObject(node, {required("name", name(boundary.name)), optional("location", value(boundary.location)),
                      optional("default", onlyTrue()), optional("type", value(boundary.type)),
                      optional("shell", value(boundary.shell)), optional("tags", value(boundary.tags)),
                      optional("threads", value(boundary.threads))});
    choose(node, "location", "default", true);
}

void Reader::read(const JsonNode& node, CaseFile::Volume& volume)
{
    volume.path = node.path();
    readObject(node, {required("name", name(volume.name)), optional("location", value(volume.location)),
                      optional("default", onlyTrue()), required("type", value(volume.type)),
                      optional("model", reference(volume.model, "the name of a model")),
                      optional("boundaries", value(volume.boundaries)), optional("threads", value(volume.threads)),
                      optional("internalThreads", value(volume.internalThreads))});
    choose(node, "location", "default", true);
}

void Reader::read(const JsonNode& node, CaseFile::Side& side)
{
    side.path = node.path();
    const Reading boundary = reference(side.boundary, "the name of a boundary, \"VOLUME::BOUNDARY\"");
    if (node.isString()) {
        boundary(node);
    } else if (node.isObject()) {
        readObject(node, {required("boundary", boundary), optional("threads", value(side.threads)),
                          optional("shellThreads", value(side.shellThreads))});
    } else {
        node.failExpected("the name of a boundary, \"VOLUME::BOUNDARY\", or an object with the key \"boundary\"");
    }
}

void Reader::read(const JsonNode& node, CaseFile::Rotation& rotation)
{
    readObject(node, {required("angle", value(rotation.angle)), optional("origin", value(rotation.origin)),
                      required("direction", value(rotation.direction))});
}

void Reader::read(const JsonNode& node, CaseFile::Interface& interface)
{
    interface.path = node.path();
    readObject(node,
               {required("name", name(interface.name)), required("between", value(interface.sides)),
                required("type", value(interface.type)),
                optional("model", reference(interface.model, "the name of a model")),
                optional("translation", value(interface.translation)), optional("rotation", value(interface.rotation)),
                optional("meshConnectivity", value(interface.meshConnectivity)),
                optional("isMapped", value(interface.isMapped)), optional("isStatic", value(interface.isStatic)),
                optional("isMeshValid", value(interface.isMeshValid)), optional("threads", value(interface.threads))});
    choose(node, "translation", "rotation", false);
}

void Reader::read(const JsonNode& node, CaseFile::Group& group)
{
    group.path = node.path();
    read(node, group.volumes);
}

void Reader::read(const JsonNode& node, CaseFile& file)
{
    const Reading masked = [&](const JsonNode& mask) {
        readObject(mask, {optional("parts", value(file.maskedParts)), optional("bodies", value(file.maskedBodies))});
    };
    readObject(node,
               {optional("$schema", ignoredText()), required("format", exactly("physics-case")),
                required("version", version(1)), optional("description", ignoredText()),
                required("geometry", value(file.geometry)), optional("names", value(file.names)),
                optional("enforceRestrictions", value(file.enforceRestrictions)), optional("masked", masked),
                optional("models", value(file.models)), optional("volumes", value(file.volumes)),
                optional("interfaces", value(file.interfaces)), optional("deactivated", value(file.deactivated))});
}

} // namespace

CaseFile readCase(const gtm::support::JsonSource& source, Complaints& complaints)
{
    CaseFile file;
    Reader reader(complaints);
    reader.attempt([&] { reader.read(source.root(), file); });
    return file;
}

} // namespace physics::apps
