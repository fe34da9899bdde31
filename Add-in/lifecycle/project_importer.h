#pragma once
// The sibling add-in that brings projects of the old format over to the present one.
#include "Add-in/core/host_reference.h"
#include "Add-in/core/modAddInErrorManagement.h"
#include "Add-in/devices/clsDeviceConfig.h"
#include "Add-in/lifecycle/project_upgrade.h"
#include "Add-in/platform/platform.h"
#include "Add-in/platform/with_events.h"

namespace fernwick {

/// Remembers the project of the old format that the host closed last. Its item in the utilities menu upgrades the file
/// of that project, or of one that the user chooses, and opens the result beside what is open.
class ProjectImporter final : public vbide::IDTExtensibility {
public:
    /// Receives the path of the copy of a file that was upgraded.
    using BackedUp = std::function<void(const std::string& backup)>;

    /// `platform` must outlive the add-in.
    explicit ProjectImporter(Platform& platform, BackedUp backedUp = {})
        : platform_(platform), backedUp_(std::move(backedUp)) {}

    void IDTExtensibility_OnConnection(const basic::Ref<vbide::VBE>& VBInst, vbide::vbext_ConnectMode ConnectMode,
                                       const basic::Ref<vbide::AddIn>& AddInInst) override;
    void IDTExtensibility_OnDisconnection(vbide::vbext_DisconnectMode RemoveMode) override;
    void IDTExtensibility_OnStartupComplete() override {}
    /// The menu may have been built again.
    void IDTExtensibility_OnAddInsUpdate() override { placeItem(); }

private:
    using Item = basic::Ref<office::CommandBarControl>;
    using Project = basic::Ref<vbide::VBProject>;

    void placeItem();
    Item utilitiesMenu() const;
    void projectRemoved(Project project);
    void itemClicked();
    std::string chosenProject(Procedure& here);
    std::string askForProject(Procedure& here);
    void import(Procedure& here, const std::string& path);
    bool upgraded(Procedure& here, const std::string& path);
    bool isOpen(const std::string& path) const;
    int box(Procedure& here, const std::string& text, int buttons);

    Platform& platform_;
    BackedUp backedUp_;
    modAddInErrorManagement errors_{platform_.interaction, platform_.app};
    modRegistry2 registry_{platform_.registry};
    modAddinPrefsManagement prefs_{registry_, errors_};
    modReferencesManagement references_{registry_, platform_.classes, errors_};
    modDeviceManagement devices_{platform_.classes, errors_};
    DeviceServices deviceServices_{errors_, platform_.interaction, platform_.classes, registry_,
                                   prefs_,  references_,           devices_};
    HostReference host_;
    Item item_;
    /// The file of the project that was closed last; "" for none.
    std::string closed_;
    WithEvents<vbide::VBProjectsEvents> projects_{
        this, on(&vbide::VBProjectsEvents::ItemRemoved, &ProjectImporter::projectRemoved)};
    WithEvents<vbide::CommandBarEvents> clicks_{this,
                                                on(&vbide::CommandBarEvents::Click, &ProjectImporter::itemClicked)};
};

} // namespace fernwick
