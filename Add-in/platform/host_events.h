#pragma once
// The event sources of the host IDE. The host owns one object for each source and raises its events synchronously, in
// the order in which things happen.
#include "Add-in/platform/events.h"
#include "Basic/ref.h"
#include <string>
#include <vector>

namespace office {
class CommandBarControl;
}

namespace vbide {

class VBProject;
class VBComponent;
class VBControl;
class VBForm;
class Reference;
using basic::Ref;
using fernwick::Event;

/// A project is already the active one during its ItemAdded; ItemActivated reports changes among open projects.
struct VBProjectsEvents {
    Event<Ref<VBProject>> ItemAdded, ItemRemoved, ItemActivated;
    /// The second argument is the old name.
    Event<Ref<VBProject>, const std::string&> ItemRenamed;
};

/// ItemAdded is raised for components added to an open project, not for those it is loaded with.
struct VBComponentsEvents {
    Event<Ref<VBComponent>> ItemAdded, ItemRemoved, ItemSelected, ItemActivated, ItemReloaded;
    Event<Ref<VBComponent>, const std::string&> ItemRenamed;
};

struct VBControlsEvents {
    Event<Ref<VBControl>> ItemAdded, ItemRemoved;
    /// The last argument is the old index, -1 for none.
    Event<Ref<VBControl>, const std::string&, int> ItemRenamed;
};

struct ReferencesEvents {
    Event<Ref<Reference>> ItemAdded, ItemRemoved;
};

struct CommandBarEvents {
    /// `handled` and `CancelDefault` are set by the handler.
    Event<Ref<office::CommandBarControl>, bool&, bool&> Click;
};

struct FileControlEvents {
    /// Before the host reads a project (VBProject.FileName is set, nothing is parsed yet) or a component.
    Event<Ref<VBProject>, const std::vector<std::string>&> BeforeLoadFile;
    /// Before a file is written; Cancel = True prevents it without an error.
    Event<Ref<VBProject>, const std::string&, bool&> RequestWriteFile;
    /// After a write: 0 success, 1 cancelled, 2 failed.
    Event<Ref<VBProject>, const std::string&, int> AfterWriteFile;
    Event<Ref<VBProject>, const std::string&> AfterAddFile, AfterRemoveFile, AfterCloseFile;
};

struct VBBuildEvents {
    Event<> EnterDesignMode, EnterRunMode;
};

} // namespace vbide
