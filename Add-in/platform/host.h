#pragma once
// The host IDE's object model from the top: VBE and what it gives.
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
    /// Connects or disconnects that add-in.
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
    /// Creates the document object of `progId` and a dockable window around it, hidden at first.
    virtual Ref<Window> CreateToolWindow(const Ref<AddIn>& addIn, const std::string& progId, const std::string& caption,
                                         const std::string& guidPosition, Ref<Object>& document) = 0;
    virtual std::vector<Ref<Window>> items() const = 0;
};

class VBProjects : public Object {
public:
    virtual int Count() const = 0;
    virtual Ref<VBProject> Item(int index) const = 0;
    virtual std::vector<Ref<VBProject>> items() const = 0;
    /// Opens a project, or all of a group's. `exclusive` closes what is open first. A file of a template folder opens as
    /// with AddFromTemplate.
    virtual Ref<VBProject> AddFromFile(const std::string& path, bool exclusive = false) = 0;
    /// A new project from the template's text, with a name that is free. While handlers of ItemAdded run, FileName tells the template; then it has
    /// no file of its own.
    virtual Ref<VBProject> AddFromTemplate(const std::string& path, bool exclusive = false) = 0;
    virtual void Remove(const Ref<VBProject>& project) = 0;
};

/// Gives the event sources. A handler fires only while its sink holds the source.
class Events : public Object {
public:
    virtual Ref<vbide::VBProjectsEvents> VBProjectsEvents() = 0;
    virtual Ref<vbide::VBComponentsEvents> VBComponentsEvents(const Ref<VBProject>& project) = 0;
    virtual Ref<vbide::ReferencesEvents> ReferencesEvents(const Ref<VBProject>& project) = 0;
    virtual Ref<vbide::VBControlsEvents> VBControlsEvents(const Ref<VBProject>& project, const Ref<VBForm>& form) = 0;
    virtual Ref<vbide::CommandBarEvents> CommandBarEvents(const Ref<office::CommandBarControl>& control) = 0;
    /// With Nothing: the loads and writes of all projects.
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
    /// The folder above the host's project templates; "" when it is not known.
    virtual std::string TemplatePath() const = 0;
};

/// What the host calls of an add-in.
class IDTExtensibility : public Object {
public:
    virtual void IDTExtensibility_OnConnection(const Ref<VBE>& VBInst, vbext_ConnectMode ConnectMode,
                                               const Ref<AddIn>& AddInInst) = 0;
    virtual void IDTExtensibility_OnDisconnection(vbext_DisconnectMode RemoveMode) = 0;
    virtual void IDTExtensibility_OnStartupComplete() = 0;
    virtual void IDTExtensibility_OnAddInsUpdate() = 0;
};

} // namespace vbide
