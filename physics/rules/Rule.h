#pragma once

#include <string>
#include <vector>

namespace physics {

class Boundary;
class Interface;
class Physics;
class Volume;

/// One rule that a set-up must keep. Each check returns its complaints as whole lines for people, the last
/// of which says how serious they are: "MUST" for an error, "SHOULD" for a warning. Without a complaint,
/// or when the rule has nothing to say of that kind of object, the result is empty.
///
/// With `ignoreWarnings`, rules that only warn stay silent; errors are reported in any case.
class Rule {
public:
    virtual ~Rule() = default;
    virtual std::vector<std::string> checkInterface(const Interface* /*interface*/, bool /*ignoreWarnings*/)
    {
        return {};
    }
    virtual std::vector<std::string> checkBoundary(const Boundary* /*boundary*/, bool /*ignoreWarnings*/) { return {}; }
    virtual std::vector<std::string> checkVolume(const Volume* /*volume*/, bool /*ignoreWarnings*/) { return {}; }

    /// What the rule says of the set-up as a whole: it looks at each boundary and concludes.
    std::vector<std::string> checkPhysics(const Physics* physics, bool ignoreWarnings);

    /// The two parts of `checkPhysics`, for who walks over the boundaries for other reasons too. They are looked at in
    /// the order of `Physics::boundaries`; a conclusion begins anew.
    /// @{
    virtual void lookAt(const Boundary* /*boundary*/, bool /*ignoreWarnings*/) {}
    virtual std::vector<std::string> conclude() { return {}; }
    /// @}
};

} // namespace physics
