#include "locationmodel/Explain.h"

#include "locationmodel/BoundaryEntity.h"
#include "locationmodel/InteriorEntity.h"
#include "locationmodel/Judgement.h"

namespace gtm::bundled {

std::string explain(const Interior& interior)
{
    Reason why;
    judge(static_cast<const InteriorEntity&>(interior), &why);
    return why.text();
}

std::string explain(const Boundary& boundary)
{
    Reason why;
    judge(static_cast<const BoundaryEntity&>(boundary), &why);
    return why.text();
}

std::string explain(const Interface& interface)
{
    Reason why;
    judge(interface.sides(), &why);
    return why.text();
}

} // namespace gtm::bundled
