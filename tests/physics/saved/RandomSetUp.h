#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace physics {

class Boundary;
class Geometry;
class Interface;
class Model;
class Physics;
class Volume;

/// Builds up a set-up, and takes some of it down again, as a row of numbers says. Names and thread ids are
/// all different and nothing is renamed, since what is found under an equal one depends on the history; the
/// values of periodic interfaces stay as they are at first, since they are not kept.
class RandomSetUp {
public:
    RandomSetUp(Physics& physics, const Geometry& geometry, const std::vector<unsigned>& numbers);

private:
    unsigned next();
    template <class T>
    T oneOf(const std::vector<T>& values);
    std::string newName(const std::string& noun);
    std::string bodies();
    std::string faces();

    void change();
    void makeModel();
    void makeVolume();
    void makeDefaultVolume();
    void makeBoundary(Volume* volume);
    void makeInterface();
    void makeSettings();
    void makeBundle();
    void changeVolume(Volume* volume);
    void changeBoundary(Boundary* boundary);
    void changeInterface(Interface* interface);
    void changeMask();
    void changeGroups();
    void endSomething();
    Model* someModel();

    Physics& m_physics;
    const Geometry& m_geometry;
    const std::vector<unsigned>& m_numbers;
    std::size_t m_next = 0;
    int m_lastNumber = 0; // of names, threads and zones
};

} // namespace physics
