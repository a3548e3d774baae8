#include "physics/report/Sections.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Settings.h"
#include "physics/Volume.h"
#include "physics/report/Blocks.h"
#include "physics/report/ListWriter.h"
#include "physics/report/Words.h"

namespace physics {

void appendModels(std::string& text, const Contents& contents)
{
    appendTitle(text, "Models:", '~');
    for (const Model* model : contents.models) {
        appendLine(text, "Model ", inWords(model->id()));
        appendLine(text, "  Domains:", "");
        appendDomains(text, *model, "    ");
        appendList(text, "  Settings = ", idsOf(model->settings()));
        appendList(text, "  Volumes                 = ", idsOf(model->volumes()));
        appendList(text, "  Boundaries              = ", idsOf(model->boundaries()));
        appendList(text, "  Boundary patches        = ", idsOf(model->boundaryPatches()));
        appendList(text, "  Interfaces              = ", idsOf(model->interfaces()));
        appendList(text, "  Volume settings         = ", idsOf(model->volumeSettings()));
        appendList(text, "  Internal settings       = ", idsOf(model->internalSettings()));
        appendList(text, "  Boundary patch settings = ", idsOf(model->boundaryPatchSettings()));
        appendList(text, "  Interface settings      = ", idsOf(model->interfaceSettings()));
        appendGap(text);
    }
}

} // namespace physics
