#pragma once

/// @namespace gtm
/// The whole location-model interface. The library `physics` is built against these declarations and
/// leaves their definitions to the location model that the host links.
///
/// The entities are ordinary classes with a protected constructor and destructor: an implementation
/// derives from them, defines their members, and is the only one to make or end them. Everybody else
/// holds plain pointers and compares them by address. Entities are created and destroyed only through
/// the operations of `VirtualTopology`, `Interior`, `Boundary` and `Interface`; a host that ends an
/// entity behind the back of the `physics` object that lies on it leaves that object dangling.

#include "gtm/Body.h"
#include "gtm/Boundary.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "gtm/Interface.h"
#include "gtm/Interior.h"
#include "gtm/Location.h"
#include "gtm/Model.h"
#include "gtm/Part.h"
#include "gtm/Region.h"
#include "gtm/Topology.h"
#include "gtm/TopologyMap.h"
#include "gtm/VirtualTopology.h"
