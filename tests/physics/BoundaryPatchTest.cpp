#include "physics/BoundaryPatch.h"

#include "tests/physics/ContactCase.h"

#include <gtest/gtest.h>

namespace physics {
namespace {

class BoundaryPatchTest : public ContactCase {
protected:
    BoundaryPatch* own = hotWall->patch(nullptr);
};

TEST_F(BoundaryPatchTest, ofAnUndividedBoundaryCarriesItsName)
{
    EXPECT_EQ(own->boundary(), hotWall);
    EXPECT_EQ(own->interface(), nullptr);
    EXPECT_EQ(own->volume(), hot);
    EXPECT_EQ(own->volumeType(), VolumeType::Fluid);
    EXPECT_EQ(own->interfaceType(), InterfaceType::Unset);
    EXPECT_EQ(own->name(), "hot wall");
    EXPECT_EQ(own->pairedPatch(), nullptr);
    EXPECT_FALSE(own->isChild());
}

TEST_F(BoundaryPatchTest, ofADividedBoundaryIsNamedAfterItsInterface)
{
    Interface* contact = join(hotWall, coldWall, "contact", InterfaceType::Fan);

    EXPECT_EQ(hotWall->patch(contact)->name(), "hot wall - contact");
    EXPECT_EQ(own->name(), "hot wall - NON-OVERLAPPING");
    EXPECT_EQ(hotWall->patch(contact)->interfaceType(), InterfaceType::Fan);
    EXPECT_EQ(own->interfaceType(), InterfaceType::Unset);
    contact->rename("skin");
    hotWall->rename("wall");
    EXPECT_EQ(hotWall->patch(contact)->name(), "wall - skin");
    contact->destroy();
    EXPECT_EQ(own->name(), "wall");
}

TEST_F(BoundaryPatchTest, isAChildWhenItsBoundaryIsInAnyInterface)
{
    Interface* contact = join(hotWall, coldWall);

    EXPECT_TRUE(own->isChild()); // also the patch that lies in no interface itself
    EXPECT_TRUE(hotWall->patch(contact)->isChild());
    EXPECT_FALSE(inlet->patch(nullptr)->isChild());
}

TEST_F(BoundaryPatchTest, isPairedWithThePatchOnTheOtherSide)
{
    Interface* contact = join(hotWall, coldWall);

    EXPECT_EQ(hotWall->patch(contact)->pairedPatch(), coldWall->patch(contact));
    EXPECT_EQ(coldWall->patch(contact)->pairedPatch(), hotWall->patch(contact));
    EXPECT_EQ(own->pairedPatch(), nullptr);
}

TEST_F(BoundaryPatchTest, ofAnInterfaceWithOneBoundaryIsPairedWithItself)
{
    Interface* self = join(hotWall, hotWall);

    EXPECT_EQ(hotWall->patch(self)->pairedPatch(), hotWall->patch(self));
}

TEST_F(BoundaryPatchTest, keepsItsIdAndDrawsNoOther)
{
    const int before = drawPatchId();

    Interface* contact = join(hotWall, coldWall);

    EXPECT_EQ(hotWall->patch(contact)->id(), before + 1);
    EXPECT_EQ(coldWall->patch(contact)->id(), before + 2);
    EXPECT_EQ(hotWall->patch(nullptr), own);
}

TEST_F(BoundaryPatchTest, hasTheShellTypeOfItsBoundaryEvenWithoutShell)
{
    EXPECT_EQ(own->shellType(), ShellType::Unset);
    hotWall->setShellModel(model);
    ASSERT_TRUE(hotWall->setShellType(ShellType::HeatConduction));
    hotWall->setShellModel(nullptr);

    EXPECT_EQ(own->shellType(), ShellType::HeatConduction);
}

TEST_F(BoundaryPatchTest, knowsTheModelThatHoldsEachKindOfItsSettings)
{
    Model* ofShell = physics.createModel();
    Model* ofInterface = physics.createModel();
    Interface* contact = join(hotWall, coldWall, "contact", InterfaceType::Wall, ofInterface);
    BoundaryPatch* patch = hotWall->patch(contact);

    EXPECT_EQ(patch->model(SettingsType::VolumeSettings), model);
    EXPECT_EQ(patch->model(SettingsType::ShellSettings), nullptr);
    EXPECT_EQ(patch->model(SettingsType::InterfaceSettings), ofInterface);
    EXPECT_EQ(own->model(SettingsType::InterfaceSettings), nullptr);
    EXPECT_EQ(patch->model(SettingsType(3)), nullptr);
    EXPECT_EQ(patch->model(SettingsType(-1)), nullptr);
    hotWall->setShellModel(ofShell);
    EXPECT_EQ(patch->model(SettingsType::ShellSettings), ofShell);
    model->destroy();
    EXPECT_EQ(patch->model(SettingsType::VolumeSettings), nullptr);
}

TEST_F(BoundaryPatchTest, makesItsSettingsWhereItsModelsAre)
{
    EXPECT_EQ(own->shellSettings(), nullptr);
    hotWall->setShellModel(physics.createModel());

    EXPECT_EQ(own->boundarySettings(), own->settings(SettingsType::VolumeSettings));
    EXPECT_EQ(own->boundarySettings()->model(), model);
    EXPECT_EQ(own->shellSettings(), own->settings(SettingsType::ShellSettings));
    EXPECT_EQ(own->shellSettings()->model(), hotWall->shellModel());
    EXPECT_EQ(own->boundarySettings()->boundaryPatch(), own);
    EXPECT_EQ(own->settings(SettingsType(3)), nullptr);
}

TEST_F(BoundaryPatchTest, hasNoInterfaceSettingsAlthoughItHasAModelForThem)
{
    Interface* contact = join(hotWall, coldWall);

    EXPECT_NE(hotWall->patch(contact)->model(SettingsType::InterfaceSettings), nullptr);
    EXPECT_EQ(hotWall->patch(contact)->interfaceSettings(), nullptr);
    EXPECT_EQ(hotWall->patch(contact)->settings(SettingsType::InterfaceSettings), nullptr);
    EXPECT_EQ(own->interfaceSettings(), nullptr);
}

TEST_F(BoundaryPatchTest, takesItsSettingsAlongFromAllModels)
{
    Model* ofShell = physics.createModel();
    Interface* contact = join(hotWall, coldWall);
    hotWall->setShellModel(ofShell);
    BoundaryPatch* patch = hotWall->patch(contact);
    const Ids ids = {patch->boundarySettings()->id(), patch->shellSettings()->id()};
    patch->shellSettings()->createThreadBundle(0, ThreadType::Wall, 5, {});

    contact->destroy();

    for (const int id : ids)
        EXPECT_EQ(physics.findSettingsById(id), nullptr);
    EXPECT_EQ(physics.findThreadBundleByThreadId(5), nullptr);
    EXPECT_EQ(ofShell->boundaryPatchSettings(), SettingsList{});
    EXPECT_EQ(model->volumeSettings(hotWall), SettingsList{own->boundarySettings()});
}

TEST_F(BoundaryPatchTest, takesAlongWhatAModelWasAskedToKeepForItWithoutOwningIt)
{
    Model* other = physics.createModel();
    hotWall->setShellModel(model);
    Settings* ofVolume = other->settings(own, SettingsType::VolumeSettings);
    Settings* ofShell = other->settings(own, SettingsType::ShellSettings);
    const Ids ids = {ofVolume->id(), ofShell->id()};

    hotWall->destroy();

    for (const int id : ids)
        EXPECT_EQ(physics.findSettingsById(id), nullptr);
    EXPECT_EQ(other->settings(), SettingsList{});
}

TEST_F(BoundaryPatchTest, leavesSettingsOfNoKnownKindBehindWithoutAPatch)
{
    Settings* unknown = model->settings(own, SettingsType(7));
    const int id = unknown->id();

    hotWall->destroy();

    EXPECT_EQ(physics.findSettingsById(id), unknown);
    EXPECT_EQ(unknown->boundaryPatch(), nullptr);
    EXPECT_EQ(unknown->boundary(), nullptr);
    EXPECT_EQ(unknown->volume(), nullptr);
    EXPECT_EQ(unknown->name(), "");
    EXPECT_FALSE(unknown->isActive());
    physics.clear();
    EXPECT_EQ(physics.findSettingsById(id), nullptr);
}

} // namespace
} // namespace physics
