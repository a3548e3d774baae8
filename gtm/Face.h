#pragma once

#include "gtm/Region.h"

namespace gtm {

class FaceUse;

/// A piece of surface. It bounds one body or separates two; each body sees it through a face use of
/// its own. A face inside one body has two face uses of that body.
///
/// The face uses are read from the entity itself, so that walking a surface costs no call.
class GTM_EXPORT Face : public Region {
public:
    /// The use of the face on its first side; never null once the topology is complete.
    FaceUse* firstFaceUse() const { return m_firstFaceUse; }

    /// The use on the second side, or null when the face has one side only.
    FaceUse* secondFaceUse() const { return m_secondFaceUse; }

protected:
    Face() = default;
    ~Face() override = default;

    /// For the implementation, while it builds the topology. The face owns neither.
    void setFaceUses(FaceUse* first, FaceUse* second)
    {
        m_firstFaceUse = first;
        m_secondFaceUse = second;
    }

private:
    FaceUse* m_firstFaceUse = nullptr;
    FaceUse* m_secondFaceUse = nullptr;
};

} // namespace gtm
