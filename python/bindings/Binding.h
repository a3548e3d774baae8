#pragma once

#include "python/bindings/Docstrings.h"
#include "python/bindings/Exchange.h"

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

namespace physics::python {

/// What Python holds for an object of a class, and how it knows that class.
template <class T>
struct HeldFor {
    using type = Handle<T>;
    // Python knows a base only where there are several kinds of it.
    using Base = std::conditional_t<std::is_same_v<HandleBase<T>, HandleToOne<T>>, AnyHandle, HandleBase<T>>;
    using Class = pybind11::class_<type, Base, std::shared_ptr<type>>;
};
template <>
struct HeldFor<physics::Region> {
    using type = Handle<physics::Region>;
    using Class = pybind11::class_<type, AnyHandle, std::shared_ptr<type>>;
};
template <>
struct HeldFor<gtm::Region> {
    using type = Handle<gtm::Region>;
    using Class = pybind11::class_<type, std::shared_ptr<type>>;
};
template <class T>
struct HeldByItself {
    using type = T;
    using Class = pybind11::class_<type, std::shared_ptr<type>>;
};
template <>
struct HeldFor<Physics> : HeldByItself<SetUp> {};
template <>
struct HeldFor<TypeManager> : HeldByItself<TypeTables> {};
template <>
struct HeldFor<gtm::bundled::LocationModel> : HeldByItself<Geometry> {};

template <class T>
using HeldAs = typename HeldFor<T>::type;

/// Functions take their object in this form: what Python made without a constructor is refused as an argument then.
template <class T>
using Self = std::shared_ptr<HeldAs<T>>;

template <class T>
HeldAs<T>& present(const Self<T>& self)
{
    if (self == nullptr)
        throw pybind11::type_error("an object is needed here, not None");
    return *self;
}

template <class T, class... A, class Member, class Give>
auto wrapped(Member member, Give answer)
{
    return [member, answer](const Self<T>& self, const Taken<A>&... taken) {
        HeldAs<T>& held = present<T>(self);
        T& object = held.object();
        [[maybe_unused]] auto& place = held.owner();
        const auto call = [&]() -> decltype(auto) { return (object.*member)(ArgumentFor<A>::use(place, taken)...); };
        static_cast<void>(answer); // a member that answers nothing needs none
        if constexpr (std::is_void_v<decltype(call())>)
            call();
        else
            return answer(place, call(), taken...);
    };
}

/// A function for Python of a member. `answer` makes its answer of that of the member and of the arguments.
template <class T, class R, class... A, class Give>
auto wrap(R (T::*member)(A...), Give answer)
{
    return wrapped<T, A...>(member, answer);
}
template <class T, class R, class... A, class Give>
auto wrap(R (T::*member)(A...) const, Give answer)
{
    return wrapped<T, A...>(member, answer);
}

template <class Member>
auto wrap(Member member)
{
    return wrap(member, [](auto& place, auto&& answer, const auto&...) {
        return give(place, std::forward<decltype(answer)>(answer));
    });
}

/// Of a member whose answer is never null.
template <class Member>
auto always(Member member)
{
    return wrap(member, [](auto& place, auto* answer, const auto&...) { return giveAlways(place, answer); });
}

/// Of a member whose list may hold null.
template <class Member>
auto each(Member member)
{
    return wrap(member, [](auto& place, const auto& answer, const auto&...) { return giveEach(place, answer); });
}

/// Of a member for which its only argument, an object, must not be missing although elsewhere it may.
template <class T, class R, class Object>
auto needing(R (T::*member)(Object*))
{
    return [member](const Self<T>& self, const Held<std::remove_const_t<Object>>& taken) {
        HeldAs<T>& held = present<T>(self);
        T& object = held.object();
        return give(held.owner(), (object.*member)(objectIn(held.owner(), taken)));
    };
}

/// What a member writes to a stream, as a text.
template <class Write>
Text written(Write write)
{
    std::ostringstream stream;
    write(stream);
    return {stream.str()};
}

/// Binds the members of one class. Those of C++ get Python's spelling, and a docstring from their comment.
template <class T>
class Binding {
public:
    /// `room` stands before the name in the table of docstrings: "gtm::" for all that is not in `physics/`.
    Binding(pybind11::module_& module, const char* name, const char* room = "")
        : m_name(std::string(room) + name), m_class(module, name, docstring(m_name).c_str())
    {}

    template <class Member, class... Extra>
    Binding& def(const char* member, Member function, const Extra&... extra)
    {
        return as(pythonName(member).c_str(), member, function, extra...);
    }

    /// A C++ member under a name of its own.
    template <class Function, class... Extra>
    Binding& as(const char* name, const char* member, Function function, const Extra&... extra)
    {
        const std::string text = docstring(m_name + "::" + member);
        if constexpr (std::is_member_function_pointer_v<Function>)
            m_class.def(name, wrap(function), pybind11::doc(text.c_str()), extra...);
        else
            m_class.def(name, function, pybind11::doc(text.c_str()), extra...);
        return *this;
    }

    /// What Python has beyond C++.
    template <class Function, class... Extra>
    Binding& more(const char* name, Function function, const char* text, const Extra&... extra)
    {
        m_class.def(name, function, pybind11::doc(text), extra...);
        return *this;
    }

    /// Makes the object iterable: one after the other in the order of a list of its members.
    template <class List>
    Binding& iterates(List list)
    {
        const auto objects = wrap(list);
        m_class.def("__iter__",
                    [objects](const Self<T>& self) { return pybind11::iter(pybind11::cast(objects(self))); });
        return *this;
    }

    auto& type() { return m_class; }

private:
    const std::string m_name;
    typename HeldFor<T>::Class m_class;
};

} // namespace physics::python
