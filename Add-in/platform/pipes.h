#pragma once
// The objects of a device family's pipe: what carries projects and the runtime to its devices.
#include "Add-in/platform/host.h"
#include "Add-in/platform/object.h"
#include <cstdint>
#include <string>
#include <vector>

namespace qlpipe {

/// What a pipe's object tells while it works. Raised from inside the object's own call; the sink may let go of
/// the object in any of them.
class IQLPipeEvents {
public:
    virtual ~IQLPipeEvents() = default;
    /// `percent` of the bytes to send, 0 to 100.
    virtual void SendProgress(const std::string& status, std::int32_t percent) = 0;
    virtual void SendComplete() = 0;
    /// Numbers from 20000 to 20999.
    virtual void SendError(std::int32_t errorNumber, const std::string& message) = 0;
    /// `source` is a file or "", `line` 0 for none. Numbers from 100 to 899; they are stored with an offset.
    virtual void SendWarning(const std::string& message, const std::string& source, std::int32_t line,
                             std::int32_t warningNumber) = 0;
};

/// What goes to a device: two lists of equal length. A file has its full path in the first and its name on the
/// device in the second, with "\" between folders. A component that the device must have already has its
/// identifier and "REF".
struct ProjectFiles {
    const std::vector<std::string>& ProjectFileList;
    const std::vector<std::string>& ProjectResourceList;
};
inline constexpr char kReferenceMarker[] = "REF";

/// What a pipe is told of the application besides its files.
struct ApplicationInfo {
    /// The project's folder, with a separator at its end.
    std::string ProjectPath;
    std::string ProjectName;
    /// A copy of the icon that lives as long as the call; "" for none.
    std::string TempIconFile;
    /// What the device shows.
    std::string DisplayName;
    std::string Version;
};

/// Registered under the pipe's ProgID followed by ".Pipe". Operations are synchronous.
class IQLPipe : public fernwick::Object {
public:
    /// True when the transfer succeeded. What went wrong was told as an error event.
    virtual bool SendProject(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project,
                             const ProjectFiles& files, const ApplicationInfo& application) = 0;
    /// The sink outlives its use here.
    virtual void SetEventSink(IQLPipeEvents& sink) = 0;
    /// Writes a package into the folder `saveLocation` instead of sending.
    virtual bool MakePackage(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project,
                             const ProjectFiles& files, const ApplicationInfo& application,
                             std::string& saveLocation) = 0;
    /// Progress and outcome come as events.
    virtual void SendRuntime(const std::string& deviceName) = 0;
};

/// Registered under the pipe's ProgID followed by ".Validation".
class IQLPipeValidation : public fernwick::Object {
public:
    /// Whether devices of this design target key can be served here.
    virtual bool IsDeviceSupported(const std::string& key) = 0;
    /// True when devices of the family can take these files. Findings come as events.
    virtual bool ValidateFiles(const basic::Ref<vbide::VBProject>& project, const ProjectFiles& files) = 0;
    virtual void SetEventSink(IQLPipeEvents& sink) = 0;
};

/// A setting that a pipe stores in a project, as a page shows it: a label and a field of text.
struct PipeSetting {
    /// Section and key of VBProject::ReadProperty.
    std::string Section, Key;
    std::string Caption;
    /// What stands in the field; nothing is stored before ApplyPage.
    std::string Value;
};

/// A page of the settings dialog that a pipe contributes: a form without a window of its own. The dialog draws its
/// fields and writes what the user types into them.
class IQLPipePage : public fernwick::Object {
public:
    /// In the order of the page.
    virtual std::vector<PipeSetting>& Settings() = 0;
    virtual bool Visible() const = 0;
};

/// Registered under the pipe's ProgID followed by ".Configuration".
class IQLPipeConfiguration : public fernwick::Object {
public:
    /// The page for a project, filled with what the project stores; Nothing for a pipe that has none. Twips from the
    /// dialog's corner.
    virtual basic::Ref<IQLPipePage> CreatePage(const basic::Ref<vbide::VBProject>& project, std::int32_t top,
                                               std::int32_t left) = 0;
    virtual void ShowPage() = 0;
    virtual void HidePage() = 0;
    /// Whether what the user typed can be stored.
    virtual bool ValidatePage() = 0;
    /// Stores it in the project.
    virtual void ApplyPage() = 0;
    /// Lets go of the page and the project.
    virtual void ClosePage() = 0;
    virtual bool HasPage() = 0;
    /// Also its node in the dialog's tree; "" for a pipe without a page.
    virtual std::string PageName() = 0;
};

} // namespace qlpipe
