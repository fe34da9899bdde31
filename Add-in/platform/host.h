#pragma once
// The host IDE's object model: VBE and what it contains.
#include "Add-in/platform/command_bars.h"
#include "Add-in/platform/host_events.h"
#include "Add-in/platform/host_project.h"

namespace vbide {

enum vbext_ConnectMode : int {
    vbext_cm_AfterStartup = 0,
    vbext_cm_Startup = 1,
    vbext_cm_External = 2,
    vbext_cm_CommandLine = 3,
};
enum vbext_DisconnectMode : int { vbext_dm_HostShutdown = 0, vbext_dm_UserClosed = 1 };
enum vbext_WindowState : int { vbext_ws_Normal = 0, vbext_ws_Minimize = 1, vbext_ws_Maximize = 2 };

class Window : public Object {
public:
    virtual std::string Caption() const = 0;
    virtual bool Visible() const = 0;
    virtual void Visible(bool visible) = 0;
    virtual vbext_WindowState WindowState() const = 0;
    virtual void WindowState(vbext_WindowState state) = 0;
    virtual void SetFocus() = 0;
    virtual void Close() = 0;
};

class AddIn : public Object {
public:
    virtual std::string ProgId() const = 0;
    virtual std::string Description() const = 0;
    virtual bool Connect() const = 0;
    /// Connects or disconnects the add-in.
    virtual void Connect(bool connect) = 0;
};

class Addins : public Object {
public:
    virtual int Count() const = 0;
    /// Error 9 for a ProgID that is not listed.
    virtual Ref<AddIn> Item(const std::string& progId) const = 0;
    virtual std::vector<Ref<AddIn>> items() const = 0;
};

class Windows : public Object {
public:
    /// Creates the document object of `progId` in a dockable window that is hidden at first.
    virtual Ref<Window> CreateToolWindow(const Ref<AddIn>& addIn, const std::string& progId, const std::string& caption,
                                         const std::string& guidPosition, Ref<Object>& document) = 0;
    virtual std::vector<Ref<Window>> items() const = 0;
};

class VBProjects : public Object {
public:
    virtual int Count() const = 0;
    virtual Ref<VBProject> Item(int index) const = 0;
    virtual std::vector<Ref<VBProject>> items() const = 0;
    /// Opens a project, all projects of a group, or a component in a new project. `exclusive` closes the open ones first;
    /// returns Nothing if the user then keeps their unsaved work. A file in a template folder is opened as with
    /// AddFromTemplate.
    virtual Ref<VBProject> AddFromFile(const std::string& path, bool exclusive = false) = 0;
    /// Creates a project from the template under a free name. While handlers of ItemAdded run, FileName is the
    /// template's; afterwards the project has no file.
    virtual Ref<VBProject> AddFromTemplate(const std::string& path, bool exclusive = false) = 0;
    virtual void Remove(const Ref<VBProject>& project) = 0;
    /// The path of the project group that a project was opened with; "" for none.
    virtual std::string GroupOf(const Ref<VBProject>&) const { return {}; }
};

/// The event sources. A handler is called only while its sink holds the source.
class Events : public Object {
public:
    virtual Ref<vbide::VBProjectsEvents> VBProjectsEvents() = 0;
    virtual Ref<vbide::VBComponentsEvents> VBComponentsEvents(const Ref<VBProject>& project) = 0;
    virtual Ref<vbide::ReferencesEvents> ReferencesEvents(const Ref<VBProject>& project) = 0;
    virtual Ref<vbide::VBControlsEvents> VBControlsEvents(const Ref<VBProject>& project, const Ref<VBForm>& form) = 0;
    virtual Ref<vbide::CommandBarEvents> CommandBarEvents(const Ref<office::CommandBarControl>& control) = 0;
    /// Pass Nothing to observe the loads and writes of all projects.
    virtual Ref<vbide::FileControlEvents> FileControlEvents(const Ref<VBProject>& project) = 0;
    virtual Ref<vbide::VBBuildEvents> VBBuildEvents() = 0;
};

class VBE : public Object {
public:
    virtual Ref<vbide::Events> Events() = 0;
    virtual Ref<vbide::Addins> Addins() = 0;
    virtual Ref<vbide::VBProjects> VBProjects() = 0;
    virtual Ref<vbide::Windows> Windows() = 0;
    virtual Ref<office::CommandBars> CommandBars() = 0;
    /// Nothing when no project is open.
    virtual Ref<VBProject> ActiveVBProject() const = 0;
    virtual void ActiveVBProject(const Ref<VBProject>& project) = 0;
    virtual Ref<VBComponent> SelectedVBComponent() const = 0;
    /// The folder above the host's project templates; "" if unknown.
    virtual std::string TemplatePath() const = 0;
};

/// The operations of an add-in that the host calls.
class IDTExtensibility : public Object {
public:
    virtual void IDTExtensibility_OnConnection(const Ref<VBE>& VBInst, vbext_ConnectMode ConnectMode,
                                               const Ref<AddIn>& AddInInst) = 0;
    virtual void IDTExtensibility_OnDisconnection(vbext_DisconnectMode RemoveMode) = 0;
    virtual void IDTExtensibility_OnStartupComplete() = 0;
    /// An add-in was connected or disconnected.
    virtual void IDTExtensibility_OnAddInsUpdate() = 0;
};

} // namespace vbide
