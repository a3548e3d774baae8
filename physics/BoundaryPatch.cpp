#include "physics/BoundaryPatch.h"

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Settings.h"
#include "physics/Volume.h"

namespace physics {

int BoundaryPatch::s_lastUsedId = 0;

BoundaryPatch::BoundaryPatch(int id, Boundary* boundary, Interface* interface)
    : m_id(id), m_boundary(boundary), m_interface(interface)
{}

BoundaryPatch::BoundaryPatch(Boundary* boundary, Interface* interface)
    : BoundaryPatch(nextId(s_lastUsedId), boundary, interface)
{}

BoundaryPatch::~BoundaryPatch() { endSettings(); }

void BoundaryPatch::endSettings()
{
    for (const SettingsType kind :
         {SettingsType::VolumeSettings, SettingsType::InterfaceSettings, SettingsType::ShellSettings})
        if (Model* holder = model(kind))
            holder->deleteBoundaryPatchSettings(this, kind);
    // What other models were asked to keep for this patch. Settings of no known kind are in no list of a model; they
    // stay, detached, until the set-up is cleared.
    for (Settings* settings : m_settings.objects())
        if (Model::isPatchKind(settings->type()))
            delete settings;
    Settings::detachAll(m_settings);
}

Volume* BoundaryPatch::volume() const { return m_boundary->volume(); }
VolumeType BoundaryPatch::volumeType() const { return m_boundary->volumeType(); }
ShellType BoundaryPatch::shellType() const { return m_boundary->shellType(); }

InterfaceType BoundaryPatch::interfaceType() const
{
    return m_interface == nullptr ? InterfaceType::Unset : m_interface->type();
}

Model* BoundaryPatch::model(SettingsType kind) const
{
    switch (kind) {
    case SettingsType::VolumeSettings:
        return m_boundary->volumeModel();
    case SettingsType::ShellSettings:
        return m_boundary->shellModel();
    case SettingsType::InterfaceSettings:
        return m_interface == nullptr ? nullptr : m_interface->model();
    }
    return nullptr;
}

Settings* BoundaryPatch::settings(SettingsType kind) const
{
    Model* holder = model(kind);
    return holder == nullptr ? nullptr : holder->settings(this, kind);
}

Settings* BoundaryPatch::boundarySettings() const { return settings(SettingsType::VolumeSettings); }
Settings* BoundaryPatch::shellSettings() const { return settings(SettingsType::ShellSettings); }
Settings* BoundaryPatch::interfaceSettings() const { return settings(SettingsType::InterfaceSettings); }

bool BoundaryPatch::isChild() const { return m_boundary->noOfInterfaces() > 0; }

BoundaryPatch* BoundaryPatch::pairedPatch() const
{
    if (m_interface == nullptr)
        return nullptr;
    const Boundary* other = m_interface->otherBoundary(m_boundary);
    return other == nullptr ? nullptr : other->patchFor(m_interface);
}

std::string BoundaryPatch::name() const
{
    if (!isChild())
        return m_boundary->name();
    return m_boundary->name() + " - " + (m_interface == nullptr ? "NON-OVERLAPPING" : m_interface->name());
}

} // namespace physics
