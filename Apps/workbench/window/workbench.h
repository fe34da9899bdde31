#pragma once
// The desktop as a whole: the host, the add-in and the window over them.
#include "Add-in/core/connect/connections.h"
#include "Apps/common/host_options.h"
#include "Apps/workbench/assist/project_insight.h"
#include "Apps/workbench/bridge/qt_clipboard.h"
#include "Apps/workbench/bridge/qt_loop.h"
#include "Apps/workbench/bridge/qt_user.h"
#include "Apps/workbench/project/recent_projects.h"
#include "Apps/workbench/renaming/name_commands.h"
#include "Apps/workbench/unsaved/unsaved_work.h"
#include "Apps/workbench/window/boxes.h"
#include "Apps/workbench/window/commands.h"
#include "Apps/workbench/window/main_window.h"
#include "Apps/workbench/window/transfer_notice.h"
#include "Apps/workbench/zoom/desktop_windows.h"

namespace workbench {

class Workbench {
public:
    /// Creates the window, which is not shown yet, and the add-in, which is not connected yet.
    Workbench();
    ~Workbench();
    Workbench(const Workbench&) = delete;

    /// Opens a project. Errors are shown in a box.
    void open(const std::string& path);
    /// Connects the add-in, then opens these projects, so that all of them pass its handlers.
    void begin(const std::vector<std::string>& projects);
    /// Connects the add-in, which adopts the active project.
    void connect();

    MainWindow& window() { return *window_; }
    host::Host& host() { return *host_; }
    /// The add-in of the present connection; references to it end with that connection.
    fernwick::Modules& addIn() { return connections_.current(); }
    DesktopWindows& windows() { return windows_; }

private:
    host::HostOptions hostOptions();
    void buildWindow();
    void watchForms();
    ProgramActions programActions();
    UnsavedWork::Callbacks unsavedCallbacks();
    void run(const std::function<void()>& act);
    void newProject();
    void editOptions();
    vbide::Ref<fernwick::clsQLProject> activeFernwickProject();
    void startActive();
    void convertActive();
    void formClosed(const fernwick::Form& form);
    void showBackup(const std::string& backup);
    bool isConnected() const;
    bool compiled(const vbide::Ref<vbide::VBProject>& project);
    bool mayRunSteps(const std::string& commandLine, const std::string& folder);
    bool mayClose();

    host::Clock clock_;
    QtUser user_;
    QtLoop loop_{clock_, [this](std::exception_ptr error) { showError(std::move(error), window_.get()); }};
    QtClipboard clipboard_;
    DesktopWindows windows_;
    apps::Machine machine_;
    apps::InstalledControls controls_{machine_.installation()};
    fernwick::Connections connections_;
    std::shared_ptr<host::Host> host_;
    std::unique_ptr<ProjectInsight> insight_;
    std::unique_ptr<NameCommands> names_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<RecentProjects> recent_;
    std::unique_ptr<UnsavedWork> unsaved_;
    std::unique_ptr<TransferNotice> transfers_;
    QTimer problemsSoon_, openingCheck_;
    fernwick::Subscription projectAdded_;
};

} // namespace workbench
