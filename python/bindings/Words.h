#pragma once

namespace gtm {
class Body;
class Face;
class FaceUse;
class Part;
} // namespace gtm

namespace physics {
class Boundary;
class BoundaryPatch;
class Interface;
class Model;
class Settings;
class ThreadBundle;
class Volume;
} // namespace physics

namespace physics::python {

// What messages call an object.
inline const char* wordFor(const Boundary*) { return "boundary"; }
inline const char* wordFor(const BoundaryPatch*) { return "patch"; }
inline const char* wordFor(const Interface*) { return "interface"; }
inline const char* wordFor(const Model*) { return "model"; }
inline const char* wordFor(const Settings*) { return "settings object"; }
inline const char* wordFor(const ThreadBundle*) { return "thread bundle"; }
inline const char* wordFor(const Volume*) { return "volume"; }
inline const char* wordFor(const gtm::Body*) { return "body"; }
inline const char* wordFor(const gtm::Face*) { return "face"; }
inline const char* wordFor(const gtm::FaceUse*) { return "face use"; }
inline const char* wordFor(const gtm::Part*) { return "part"; }

} // namespace physics::python
