#pragma once
#include "Add-in/platform/classes.h"
#include "Add-in/platform/clipboard.h"
#include "Add-in/platform/registry.h"
#include "Basic/code_page.h"
#include "Host/model/forms/control_class.h"
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// The services and settings that a host uses. All are optional.
struct HostOptions {
    /// The code page of all projects' files that are not UTF-8. Without it the page of each project is detected.
    std::optional<basic::CodePage> codePage;
    /// The folder of the host's project templates.
    std::string templatePath;
    /// Further folders of templates. Files opened or added from any of these folders become new, without a file.
    std::vector<std::string> templateFolders;
    /// Type libraries and control classes are looked up here.
    fernwick::Registry* registry = nullptr;
    /// Creates the documents of tool windows.
    fernwick::Classes* classes = nullptr;
    /// The source of button faces.
    const fernwick::Clipboard* clipboard = nullptr;
    /// The properties of a class that is not built in, and the class of a ProgID; see DesignerHooks.
    std::function<std::shared_ptr<const ControlClass>(const std::string& className)> controlClasses;
    std::function<std::string(const std::string& progId)> classOfProgId;
    /// The installed control classes, for toolboxes.
    std::function<std::vector<std::string>()> controlClassNames;
    /// Receives errors thrown by event handlers of add-ins. The host itself continues.
    std::function<void(const basic::ErrObject&)> handlerFailed;
    /// Called before a save replaces a file that another program changed since it was read; false cancels the save.
    /// Without this function such a save fails with error 75.
    std::function<bool(const std::string& path)> mayReplaceChanged;
    /// False to keep the changes of a save in memory only, so that the files on disk stay as they are.
    bool writesFiles = true;
    /// Called before an exclusive opening closes the open projects, to save or discard unsaved work; false cancels the
    /// opening. Without it unsaved work is discarded.
    std::function<bool()> mayReplaceProjects;
    /// Asks the user which project to open; "" for none. Without it the menu command does nothing.
    std::function<std::string()> askForProject;
};

} // namespace host
