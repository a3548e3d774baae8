#pragma once

#include <memory>
#include <unordered_map>

namespace physics::python {

class AnyHandle;
template <class T>
class Handle;

/// What keeps C++ objects alive for Python. It knows the handles that Python holds at the moment, so that one
/// object is one object in Python too, as long as somebody holds it.
class Owner : public std::enable_shared_from_this<Owner> {
public:
    Owner(const Owner&) = delete;
    Owner& operator=(const Owner&) = delete;

    /// The handle of an object that this owner keeps; null for null. The handle keeps the owner.
    template <class T>
    std::shared_ptr<Handle<T>> handle(T* object);

protected:
    Owner() = default;
    virtual ~Owner() = default;

private:
    friend class AnyHandle;

    /// Called by a handle that ends. By then the address may be that of a newer object with another handle.
    void forget(const void* address)
    {
        const auto entry = m_handles.find(address);
        if (entry != m_handles.end() && entry->second.expired())
            m_handles.erase(entry);
    }

    std::unordered_map<const void*, std::weak_ptr<AnyHandle>> m_handles;
};

} // namespace physics::python
