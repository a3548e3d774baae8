#pragma once

#include "importers/cad/CadShapes.h"

namespace gtm::bundled {

/// Divides the faces where solids touch and makes the common pieces shared faces. A piece keeps the
/// name and the number of the face that it comes from; pieces of one face are in the order of their
/// centres. Space that several solids claim goes to the first of them, with a note. Throws `CadError`,
/// without a file name, when the geometry kernel fails.
void imprint(CadShapes& shapes);

} // namespace gtm::bundled
