"""The reader of our headers finds members with their comments, and stops at what it does not know."""

import pytest

import docstrings
import headers

HEADER = """\
#pragma once

#include <string>

namespace physics {

class Other;

/// What it is.
///
/// More about it.
class PHYSICS_EXPORT Thing final : public Base {
public:
    /// Makes one.
    explicit Thing(int size);

    // ---- Names

    /// The first
    /// of all names.
    /// @{
    std::string name() const { return m_name; }
    std::string fullName() const;

    /// Not a name.
    int size() const;
    std::string shortName() const;
    /// @}

    /// Makes it larger.
    void grow(int by = 1,
              int times = 1);
    bool shrink();

    bool isBare() const;

    struct Detail {
        int value = 0; ///< a number
    };

protected:
    void hidden();

private:
    friend class Other;
    std::string m_name;
};

/// Kinds.
enum class Kind : std::int32_t {
    Unset = -1,
    Some = 0, // with a remark
};

/// A function.
PHYSICS_EXPORT int count(const Thing& thing);

} // namespace physics
"""


def members(cls):
    return {member.name: member.comment for member in cls.members}


def test_public_members_are_found_with_their_comments():
    thing = headers.parse(HEADER, "Thing.h").classes[0]

    assert (thing.name, thing.comment) == ("Thing", "What it is.  More about it.")
    assert members(thing) == {"Thing": "Makes one.", "name": "The first of all names.", "fullName": "The first of all names.",
                              "size": "Not a name.", "shortName": "The first of all names.", "grow": "Makes it larger.",
                              "shrink": "", "isBare": ""}


def test_inner_classes_enumerations_and_functions_are_found():
    header = headers.parse(HEADER, "Thing.h")

    assert [cls.name for cls in header.classes] == ["Thing", "Thing::Detail"]
    assert members(header.classes[1]) == {"value": ""}
    assert (header.enumerations[0].comment, header.enumerations[0].values) == ("Kinds.", {"Unset": -1, "Some": 0})
    assert [(function.name, function.comment) for function in header.functions] == [("count", "A function.")]


def test_what_it_does_not_know_is_an_error():
    for text, complaint in [("namespace physics {\nint\n", "x.h: ends within 'int'"),
                            ("namespace physics {\n", "x.h: ends within a class or a namespace"),
                            ("}\n", "x.h:1: nothing is open that this could close"),
                            ("namespace physics {\nint odd[3];\n}\n", "x.h:2: cannot read 'int odd\\[3\\];'"),
                            ("enum class E {\n    A,\n};\n", "x.h:1: the enumerator 'A' has no number")]:
        with pytest.raises(headers.HeaderError, match=complaint):
            headers.parse(text, "x.h")


def test_comments_are_turned_into_the_words_of_python():
    comment = "Null for `Kind::Unset`; see `Thing::fullName` and `dump`. A braced empty list is ambiguous: spell its type."

    assert docstrings.in_python(comment, {"Unset"}) == "None for `Kind.UNSET`; see `Thing.full_name` and `report`."


def test_names_are_turned_into_snake_case():
    assert [docstrings.snake_case(name) for name in ("isActive", "RansLesInterface", "noOfInterfaces", "name")] == [
        "is_active", "rans_les_interface", "no_of_interfaces", "name"]
