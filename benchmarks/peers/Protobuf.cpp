// Protocol buffers, on messages that it generated from graph.proto. Only the messages are written and read;
// they are filled, and compared with the structs, outside of what is measured.

#include "benchmarks/peers/Peer.h"

#include <google/protobuf/descriptor.h>
#include <google/protobuf/message.h>
#include <peers/graph.pb.h>

namespace peers {
namespace {

using google::protobuf::FieldDescriptor;
using google::protobuf::Message;

/// One field of a message, by the name that it has in the struct.
class Field {
public:
    Field(Message& message, const char* name)
        : m_message(message),
          m_reflection(*message.GetReflection()),
          m_descriptor(message.GetDescriptor()->FindFieldByName(name))
    {}

    void put(int number) { m_reflection.SetInt32(&m_message, m_descriptor, number); }
    void put(bool flag) { m_reflection.SetBool(&m_message, m_descriptor, flag); }
    void put(const std::string& text) { m_reflection.SetString(&m_message, m_descriptor, text); }
    void put(const std::vector<int>& numbers)
    {
        for (const int number : numbers)
            m_reflection.AddInt32(&m_message, m_descriptor, number);
    }

    template <Described T>
    void put(const T& object)
    {
        fill(*m_reflection.MutableMessage(&m_message, m_descriptor), object);
    }

    template <Described T>
    void put(const std::vector<T>& objects)
    {
        for (const T& object : objects)
            fill(*m_reflection.AddMessage(&m_message, m_descriptor), object);
    }

    void get(int& number) const { number = m_reflection.GetInt32(m_message, m_descriptor); }
    void get(bool& flag) const { flag = m_reflection.GetBool(m_message, m_descriptor); }
    void get(std::string& text) const { text = m_reflection.GetString(m_message, m_descriptor); }
    void get(std::vector<int>& numbers) const
    {
        for (int i = 0; i < m_reflection.FieldSize(m_message, m_descriptor); ++i)
            numbers.push_back(m_reflection.GetRepeatedInt32(m_message, m_descriptor, i));
    }

    template <Described T>
    void get(T& object) const
    {
        object = read<T>(*m_reflection.MutableMessage(&m_message, m_descriptor));
    }

    template <Described T>
    void get(std::vector<T>& objects) const
    {
        for (int i = 0; i < m_reflection.FieldSize(m_message, m_descriptor); ++i)
            objects.push_back(read<T>(*m_reflection.MutableRepeatedMessage(&m_message, m_descriptor, i)));
    }

    template <class T>
    static void fill(Message& message, const T& object)
    {
        T::fields(object, [&](const char* name, const auto& field) { Field(message, name).put(field); });
    }

    template <class T>
    static T read(Message& message)
    {
        T object;
        T::fields(object, [&](const char* name, auto& field) { Field(message, name).get(field); });
        return object;
    }

private:
    Message& m_message;
    const google::protobuf::Reflection& m_reflection;
    const FieldDescriptor* m_descriptor;
};

class Protobuf final : public Peer {
public:
    std::string name() const override { return "protobuf"; }
    bool writesText() const override { return false; }

    void take(const Graph& graph) override
    {
        m_message.Clear();
        Field::fill(m_message, graph);
    }

    Graph graph() const override
    {
        message::Graph copy = m_message;
        return Field::read<Graph>(copy);
    }

    std::string write() const override { return m_message.SerializeAsString(); }

    void read(const std::string& written) override
    {
        message::Graph message;
        message.ParseFromString(written);
        m_message = std::move(message);
    }

private:
    message::Graph m_message;
};

} // namespace

std::unique_ptr<Peer> protobuf() { return std::make_unique<Protobuf>(); }

} // namespace peers
