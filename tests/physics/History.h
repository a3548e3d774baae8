#pragma once

#include "physics/Physics.h"
#include "tests/gtm/ContractFixture.h"
#include "tests/physics/ReferenceModel.h"

#include <iosfwd>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// One change of a set-up: which, and numbers that choose among what there is at that moment.
struct Step {
    unsigned operation = 0;
    unsigned a = 0;
    unsigned b = 0;
    unsigned c = 0;
    unsigned d = 0;
};

std::ostream& operator<<(std::ostream& out, const Step& step);

/// A set-up and its reference, which go through the same changes. Names, thread ids and zones come from
/// small pools, so that they collide; a second set-up stands by whose objects must be refused.
class History {
public:
    History();
    ~History();

    /// Makes the change in both and compares what it answers, and then everything. Throws `Disagreement`.
    void take(const Step& step);

    static unsigned noOfOperations();

private:
    friend std::ostream& operator<<(std::ostream& out, const Step& step);

    struct Operation {
        const char* name;
        unsigned weight;
        void (History::*change)(const Step& step);
    };
    static const std::vector<Operation>& operations();
    static const Operation& operationOf(const Step& step);

    void begin();

    // Models and domains.
    void createModel(const Step& step);
    void destroyModel(const Step& step);
    void changeDomain(const Step& step);
    // Volumes.
    void createVolume(const Step& step);
    void createDefaultVolume(const Step& step);
    void renameVolume(const Step& step);
    void retypeVolume(const Step& step);
    void relocateVolume(const Step& step);
    void moveVolume(const Step& step);
    void destroyVolume(const Step& step);
    // Boundaries.
    void createBoundary(const Step& step);
    void createDefaultBoundary(const Step& step);
    void renameBoundary(const Step& step);
    void retypeBoundary(const Step& step);
    void relocateBoundary(const Step& step);
    void setShellModel(const Step& step);
    void setShellType(const Step& step);
    void tagBoundary(const Step& step);
    void destroyBoundary(const Step& step);
    // Interfaces.
    void createInterface(const Step& step);
    void createPeriodicInterface(const Step& step);
    void renameInterface(const Step& step);
    void changeInterface(const Step& step);
    void relocateInterface(const Step& step);
    void moveInterface(const Step& step);
    void destroyInterface(const Step& step);
    void touchEndedInterface(const Step& step);
    // Settings and thread bundles.
    void askForVolumeSettings(const Step& step);
    void askForInternalSettings(const Step& step);
    void askForInterfaceSettings(const Step& step);
    void askForPatchSettings(const Step& step);
    void askAnyModelForPatchSettings(const Step& step);
    void createThreadBundle(const Step& step);
    void deleteThreadBundle(const Step& step);
    void changeThreadBundle(const Step& step);
    void setThreadId(const Step& step);
    void setZoneIds(const Step& step);
    // The whole set-up.
    void deactivate(const Step& step);
    void activateGroup(const Step& step);
    void activate(const Step& step);
    void activateOne(const Step& step);
    void mask(const Step& step);
    void maskPart(const Step& step);
    void removeRegions(const Step& step);
    void refuseNothingAndForeign(const Step& step);
    void saveAndRestore(const Step& step);
    void clear(const Step& step);

    physics::Model* model(reference::Id id) const;
    physics::Volume* volume(reference::Id id) const;
    physics::Boundary* boundary(reference::Id id) const;
    physics::Interface* interface(reference::Id id) const;
    std::vector<gtm::Region*> bodyRegions(const std::vector<int>& bodies) const;
    std::vector<gtm::Region*> faceRegions(const std::vector<int>& faces) const;
    std::vector<gtm::Body*> bodies(const std::vector<int>& bodies) const;
    std::vector<physics::Volume*> volumes(const std::vector<reference::Id>& ids) const;
    std::vector<reference::Id> pickVolumes(const Step& step) const;
    reference::Id pickModel(unsigned choice) const;
    physics::ThreadBundle* pickBundle(unsigned choice) const;
    bool mayHaveType(reference::Id boundary, physics::BoundaryType type) const;
    void interfaceWasMade(physics::Interface* made, reference::Id id);
    void forgetEnded();

    /// What a saved text keeps of the living objects, by id.
    std::string keptOf(const physics::Physics& physics) const;

    struct Stranger;

    std::unique_ptr<contract::ContractModel> m_model;
    std::unique_ptr<Stranger> m_stranger;
    std::unique_ptr<physics::Physics> m_physics;
    std::unique_ptr<physics::Physics> m_copy; // restored from the text of the other
    reference::Counters m_before;
    reference::SetUp m_reference;
    std::map<reference::Id, physics::Interface*> m_interfaces; // living, to know them when they have ended
    std::vector<physics::Interface*> m_ended;
    std::map<const physics::ThreadBundle*, reference::Id> m_bundles;
};
