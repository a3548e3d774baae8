#include "examples/own-kernel/Lists.h"

#include "gtm/Face.h"
#include "gtm/Part.h"

namespace own {

std::set<gtm::Body*> bodiesOf(const std::vector<gtm::Region*>& regions)
{
    std::set<gtm::Body*> bodies;
    for (gtm::Region* region : regions) {
        if (auto* body = dynamic_cast<gtm::Body*>(region))
            bodies.insert(body);
        if (const auto* part = dynamic_cast<const gtm::Part*>(region))
            for (gtm::Body* body : part->bodies())
                bodies.insert(body);
    }
    return bodies;
}

std::set<gtm::FaceUse*> faceUsesOf(const std::vector<gtm::Region*>& regions, const Topology& topology)
{
    const std::set<gtm::Body*> bodies = bodiesOf(regions);
    std::set<gtm::FaceUse*> faceUses;
    for (const auto& faceUse : topology.m_faceUses)
        if (bodies.count(faceUse->body()) != 0)
            faceUses.insert(faceUse.get());
    for (gtm::Region* region : regions) {
        if (auto* faceUse = dynamic_cast<gtm::FaceUse*>(region))
            faceUses.insert(faceUse);
        if (const auto* face = dynamic_cast<const gtm::Face*>(region))
            for (gtm::FaceUse* side : {face->firstFaceUse(), face->secondFaceUse()})
                if (side != nullptr)
                    faceUses.insert(side);
    }
    return faceUses;
}

std::string stateText(int state)
{
    switch (state) {
    case 0:
        return "valid";
    case 1:
        return "lies on nothing";
    case 2:
        return "names what is not there";
    case 10:
        return "has surface that is in no boundary";
    case 11:
        return "names what does not belong to it";
    case 12:
        return "lies where another one lies";
    case 20:
        return "has one boundary on both sides";
    case 21:
        return "has a boundary that is not valid";
    case 22:
        return "has more than one volume on a side";
    case 23:
        return "has both sides of a face on one side";
    default:
        return "is in the unknown state " + std::to_string(state);
    }
}

} // namespace own
