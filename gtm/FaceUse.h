#pragma once

#include "gtm/Face.h"

namespace gtm {

class Body;

/// One side of a face, seen from the body that it bounds.
class GTM_EXPORT FaceUse : public Region {
public:
    /// The face of which this is a side; never null.
    Face* face() const { return m_face; }

    /// The body on this side.
    Body* body() const { return m_body; }

    /// The face use on the other side of the same face, or null when the face has one side only.
    FaceUse* partner() const
    {
        return m_face->firstFaceUse() == this ? m_face->secondFaceUse() : m_face->firstFaceUse();
    }

protected:
    /// Neither is owned, nor null; both live as long as the face use.
    FaceUse(Face* face, Body* body) : m_face(face), m_body(body) {}
    ~FaceUse() override = default;

private:
    Face* m_face;
    Body* m_body;
};

} // namespace gtm
