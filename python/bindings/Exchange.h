#pragma once

#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "gtm/Part.h"
#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "python/bindings/Casters.h"
#include "python/bindings/Handle.h"
#include "python/bindings/SetUp.h"

#include <pybind11/pybind11.h>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

// What a value of a C++ member is in Python: `Taken<A>` for an argument, `give` for an answer. Pointers to objects
// are handles; texts, triples of numbers and the host's thread handles have forms of their own; all else is itself.

namespace physics::python {

template <class T>
using Held = std::shared_ptr<Handle<T>>;

using Triple = std::tuple<double, double, double>;

/// The number of a host's thread handle.
using Address = std::uintptr_t;

/// Whether a pointer is one to an object that has a handle.
template <class T>
constexpr bool hasHandle = std::is_base_of_v<physics::Referable, T> || isOfGeometry<T>;

/// Whether a member takes no object for an argument of this type. A few members that do not are bound by hand.
template <class T>
constexpr bool mayBeNone = std::is_same_v<T, Model> || std::is_same_v<T, const Interface>;

// ---- Arguments

template <class A>
struct Argument {
    using Taken = A;
    template <class Place>
    static const A& use(Place&, const A& taken)
    {
        return taken;
    }
};

template <>
struct Argument<std::string> {
    using Taken = Text;
    template <class Place>
    static const std::string& use(Place&, const Text& taken)
    {
        return taken.bytes;
    }
};

template <>
struct Argument<std::array<double, 3>> {
    using Taken = Triple;
    template <class Place>
    static std::array<double, 3> use(Place&, const Triple& taken)
    {
        return {std::get<0>(taken), std::get<1>(taken), std::get<2>(taken)};
    }
};

template <>
struct Argument<void*> {
    using Taken = std::optional<Address>;
    template <class Place>
    static void* use(Place&, const Taken& taken)
    {
        return reinterpret_cast<void*>(taken.value_or(0)); // NOLINT(performance-no-int-to-ptr)
    }
};

/// Throws a `TypeError` for None, `EndedError` when the object has ended, and a `ValueError` when it belongs to
/// another set-up or another location model than the one that is asked.
template <class T, class Place>
T* objectIn(Place& place, const Held<T>& held)
{
    if (held == nullptr)
        throw pybind11::type_error("an object is needed here, not None");
    T* const object = &held->object();
    const Owner* expected = nullptr;
    if constexpr (isOfGeometry<T>)
        expected = &place.geometry();
    else
        expected = &place;
    if (expected != &held->owner())
        throw pybind11::value_error(std::string(pybind11::repr(pybind11::cast(held))) + " belongs to another " +
                                    (isOfGeometry<T> ? "LocationModel" : "Physics"));
    return object;
}

template <class T>
struct Argument<T*> {
    using Taken =
        std::conditional_t<mayBeNone<T>, std::optional<Held<std::remove_const_t<T>>>, Held<std::remove_const_t<T>>>;

    template <class Place>
    static T* use(Place& place, const Taken& taken)
    {
        if constexpr (mayBeNone<T>)
            return taken ? objectIn(place, *taken) : nullptr;
        else
            return objectIn(place, taken);
    }
};

template <class T>
struct Argument<std::vector<T*>> {
    using Taken = std::vector<Held<T>>;

    template <class Place>
    static std::vector<T*> use(Place& place, const Taken& taken)
    {
        std::vector<T*> objects;
        objects.reserve(taken.size());
        for (const Held<T>& held : taken)
            objects.push_back(objectIn(place, held));
        return objects;
    }
};

template <class A>
using ArgumentFor = Argument<std::remove_cv_t<std::remove_reference_t<A>>>;
template <class A>
using Taken = typename ArgumentFor<A>::Taken;

// ---- Answers

/// The handle of an object that is one of several kinds.
template <class Base, class... Kinds>
Held<Base> handleOfKind(Owner& owner, Base* object)
{
    Held<Base> found;
    static_cast<void>(((found = owner.handle(dynamic_cast<Kinds*>(object))) || ...));
    return found;
}

/// The handle of an object of this set-up or of its location model; null for null.
template <class T, class Place>
auto handleIn(Place& place, T* object)
{
    using Object = std::remove_const_t<T>;
    auto* const changeable = const_cast<Object*>(object); // Python has no constant objects
    if constexpr (std::is_same_v<Object, physics::Region>)
        return handleOfKind<Object, Volume, Boundary, Interface>(place, changeable);
    else if constexpr (std::is_same_v<Object, gtm::Region>)
        return handleOfKind<Object, gtm::Part, gtm::Body, gtm::Face, gtm::FaceUse>(place.geometry(), changeable);
    else if constexpr (isOfGeometry<T>)
        return place.geometry().handle(changeable);
    else
        return place.handle(changeable);
}

template <class Place, class R>
R give(Place&, R answer)
{
    return answer;
}

template <class Place>
Text give(Place&, std::string answer)
{
    return {std::move(answer)};
}

template <class Place>
Triple give(Place&, const std::array<double, 3>& answer)
{
    return {answer[0], answer[1], answer[2]};
}

template <class Place>
std::optional<Address> give(Place&, void* answer)
{
    return answer == nullptr ? std::nullopt : std::optional(reinterpret_cast<Address>(answer));
}

template <class Place, class T, class = std::enable_if_t<hasHandle<T>>>
auto give(Place& place, T* answer)
{
    return answer == nullptr ? std::nullopt : std::optional(handleIn(place, answer));
}

template <class Place>
std::vector<Text> give(Place&, const std::vector<std::string>& answer)
{
    std::vector<Text> result;
    for (const std::string& line : answer)
        result.push_back({line});
    return result;
}

template <class Place>
std::vector<Address> give(Place&, const std::vector<void*>& answer)
{
    std::vector<Address> result;
    for (void* handle : answer)
        result.push_back(reinterpret_cast<Address>(handle));
    return result;
}

template <class Place, class T, class = std::enable_if_t<hasHandle<T>>>
auto give(Place& place, const std::vector<T*>& answer)
{
    std::vector<decltype(handleIn(place, answer.front()))> result;
    result.reserve(answer.size());
    for (T* object : answer)
        result.push_back(handleIn(place, object));
    return result;
}

template <class Place, class... R>
auto give(Place& place, const std::tuple<R...>& answer)
{
    return std::apply([&place](const R&... each) { return std::tuple(give(place, each)...); }, answer);
}

// ---- Answers that say more than their C++ type

/// Of a member whose answer is never null.
template <class Place, class T>
auto giveAlways(Place& place, T* answer)
{
    if constexpr (std::is_same_v<T, Physics>)
        return std::static_pointer_cast<SetUp>(place.shared_from_this());
    else
        return handleIn(place, answer);
}

/// Of a member whose list may hold null.
template <class Place, class T>
auto giveEach(Place& place, const std::vector<T*>& answer)
{
    std::vector<decltype(give(place, answer.front()))> result;
    result.reserve(answer.size());
    for (T* object : answer)
        result.push_back(give(place, object));
    return result;
}

} // namespace physics::python
