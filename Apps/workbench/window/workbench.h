#pragma once
// The desktop put together: the host, the add-in and the window over them.
#include "Add-in/core/connect/Modules.h"
#include "Apps/common/host_options.h"
#include "Apps/workbench/bridge/qt_clipboard.h"
#include "Apps/workbench/bridge/qt_loop.h"
#include "Apps/workbench/bridge/qt_user.h"
#include "Apps/workbench/project/recent_projects.h"
#include "Apps/workbench/unsaved/unsaved_work.h"
#include "Apps/workbench/window/main_window.h"
#include "Apps/workbench/window/window_commands.h"

namespace workbench {

class Workbench {
public:
    /// The window is not shown yet and the add-in not connected.
    Workbench();
    ~Workbench();
    Workbench(const Workbench&) = delete;

    /// Opens a project; what goes wrong is told in a box.
    void open(const std::string& path);
    /// Opens these projects and connects the add-in so that it comes to know all of them.
    void begin(const std::vector<std::string>& projects);
    /// Connects the add-in, which takes up what is open.
    void connect();

    MainWindow& window() { return *window_; }
    host::Host& host() { return *host_; }
    fernwick::Modules& addIn() { return *modules_; }

private:
    host::HostOptions hostOptions();
    void run(const std::function<void()>& act);
    void tell(std::exception_ptr error);
    void tellProblems();
    WindowDeeds deeds();
    void newProject();
    void startActive();
    bool compiled(const vbide::Ref<vbide::VBProject>& project);
    bool mayRunSteps(const std::string& commandLine, const std::string& folder);
    bool mayClose();
    std::string askForProject();

    host::Clock clock_;
    QtUser user_;
    QtLoop loop_{clock_, [this](std::exception_ptr error) { tell(std::move(error)); }};
    QtClipboard clipboard_;
    apps::Machine machine_;
    apps::InstalledControls controls_{machine_.installation()};
    std::shared_ptr<fernwick::Modules> modules_;
    std::shared_ptr<host::Host> host_;
    std::unique_ptr<MainWindow> window_;
    std::unique_ptr<RecentProjects> recent_;
    std::unique_ptr<UnsavedWork> unsaved_;
    QTimer problemsSoon_;
    fernwick::Subscription projectAdded_;
};

} // namespace workbench
