#pragma once

#include "gtm/Region.h"
#include "physics/Interface.h"
#include "physics/Lifetime.h"
#include "physics/Region.h"
#include "python/bindings/Errors.h"
#include "python/bindings/Owner.h"
#include "python/bindings/SetUp.h"
#include "python/bindings/Words.h"

#include <memory>
#include <string>
#include <type_traits>
#include <utility>

// What Python holds in place of a pointer. An object may end while Python still holds it: then its handle
// raises `EndedError`. A handle keeps its owner alive, so that nothing ends because nobody holds the owner.

namespace physics::python {

/// What all handles have in common.
class AnyHandle {
public:
    AnyHandle(const AnyHandle&) = delete;
    AnyHandle& operator=(const AnyHandle&) = delete;
    virtual ~AnyHandle() { m_owner->forget(m_address); }

    virtual bool hasEnded() const = 0;

protected:
    AnyHandle(std::shared_ptr<Owner> owner, const void* address) : m_owner(std::move(owner)), m_address(address) {}

    const std::shared_ptr<Owner> m_owner;

private:
    const void* const m_address; // never dereferenced
};

/// Handle of an object that has no base of its own.
template <class T>
class HandleToOne : public AnyHandle {
public:
    using AnyHandle::AnyHandle;

    virtual T& object() const = 0;
};

/// Handle of a volume, a boundary or an interface.
template <>
class Handle<physics::Region> : public AnyHandle {
public:
    using AnyHandle::AnyHandle;

    virtual physics::Region& object() const = 0;
    SetUp& owner() const { return static_cast<SetUp&>(*m_owner); }
};

/// Handle of a part, a body, a face or a face use: they live as long as their location model.
template <>
class Handle<gtm::Region> : public AnyHandle {
public:
    using AnyHandle::AnyHandle;

    virtual gtm::Region& object() const = 0;
    Geometry& owner() const { return static_cast<Geometry&>(*m_owner); }
};

template <class T>
constexpr bool isOfGeometry = std::is_base_of_v<gtm::Region, T>;

/// An ended interface stays allocated, and readable, as long as its set-up.
template <class T>
constexpr bool mayBeGone = !isOfGeometry<T> && !std::is_same_v<T, Interface>;

template <class T>
using HandleBase = std::conditional_t<
    isOfGeometry<T>, Handle<gtm::Region>,
    std::conditional_t<std::is_base_of_v<physics::Region, T>, Handle<physics::Region>, HandleToOne<T>>>;

template <class T>
class Handle final : public HandleBase<T> {
public:
    Handle(std::shared_ptr<Owner> owner, T* object)
        : HandleBase<T>(std::move(owner), object), m_id(idOf(*object)), m_object(object)
    {}

    /// Throws `EndedError` when the object is gone.
    T& object() const override
    {
        if (T* const present = get())
            return *present;
        throw EndedError(std::string("the ") + wordFor(static_cast<T*>(nullptr)) + " with id " + m_id +
                         " has ended; ask its Physics for the objects that there are");
    }

    auto& owner() const { return static_cast<std::conditional_t<isOfGeometry<T>, Geometry, SetUp>&>(*this->m_owner); }

    bool hasEnded() const override
    {
        if constexpr (std::is_same_v<T, Interface>)
            return m_object->interface() == nullptr;
        else
            return isGone();
    }

    bool isGone() const { return get() == nullptr; }

    /// The id that the object had when Python first saw it, also after its end.
    const std::string& id() const { return m_id; }

private:
    static std::string idOf(const T& object)
    {
        if constexpr (isOfGeometry<T>)
            return object.id();
        else
            return std::to_string(object.id());
    }

    T* get() const
    {
        if constexpr (mayBeGone<T>)
            return m_object.get();
        else
            return m_object;
    }

    const std::string m_id;
    std::conditional_t<mayBeGone<T>, Link<T>, T*> m_object;
};

template <class T>
std::shared_ptr<Handle<T>> Owner::handle(T* object)
{
    if (object == nullptr)
        return nullptr;
    std::weak_ptr<AnyHandle>& entry = m_handles[object];
    auto present = std::dynamic_pointer_cast<Handle<T>>(entry.lock());
    if (present == nullptr || present->isGone()) {
        present = std::make_shared<Handle<T>>(shared_from_this(), object);
        entry = present;
    }
    return present;
}

} // namespace physics::python
