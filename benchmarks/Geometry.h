#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace gtm {
class Model;
} // namespace gtm

namespace benchmarks {

/// A row of bodies that share a face ("joint") with their neighbours and have eight more of their own
/// ("wall"): ten face uses a body. It lies on the location model that the program is linked with, of which
/// there are two: ScriptedGeometry.cpp and BundledGeometry.cpp.
class Geometry {
public:
    static constexpr int wallsOfBody = 8;
    static constexpr int faceUsesOfBody = wallsOfBody + 2;

    explicit Geometry(std::int64_t noOfBodies);
    ~Geometry();
    Geometry(const Geometry&) = delete;
    Geometry& operator=(const Geometry&) = delete;

    const gtm::Model* model() const;

    static std::string body(std::int64_t i) { return "body-" + std::to_string(i); }

    /// Joint `i` lies between the bodies `i - 1` and `i`.
    static std::string joint(std::int64_t i) { return "joint-" + std::to_string(i); }
    static std::string wall(std::int64_t i, int k) { return "wall-" + std::to_string(i) + "-" + std::to_string(k); }

    /// The side of a face that belongs to body `i`.
    static std::string side(const std::string& face, std::int64_t i) { return face + "@" + body(i); }

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace benchmarks
