#pragma once
// The objects of a device family's pipe, which transfers projects and the runtime to its devices.
#include "Add-in/platform/form.h"
#include "Add-in/platform/host.h"
#include "Add-in/platform/object.h"
#include <cstdint>
#include <string>
#include <vector>

namespace qlpipe {

/// Events of a pipe's object, raised within the object's own call. The sink may release the object in any of them.
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

/// The files for a device: two lists of equal length. For a file they contain its full path and its name on the device,
/// with "\" between folders; for a component that the device must already have, its identifier and "REF".
struct ProjectFiles {
    const std::vector<std::string>& ProjectFileList;
    const std::vector<std::string>& ProjectResourceList;
};
inline constexpr char kReferenceMarker[] = "REF";

/// What a pipe receives about the application besides its files.
struct ApplicationInfo {
    /// The project's folder with a trailing separator.
    std::string ProjectPath;
    std::string ProjectName;
    /// A copy of the icon that exists during the call; "" for none.
    std::string TempIconFile;
    /// The name shown on the device.
    std::string DisplayName;
    std::string Version;
};

/// Registered under the pipe's ProgID followed by ".Pipe". Operations are synchronous.
class IQLPipe : public fernwick::Object {
public:
    /// Returns True if the transfer succeeded. Failures are reported as error events.
    virtual bool SendProject(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project,
                             const ProjectFiles& files, const ApplicationInfo& application) = 0;
    /// The sink must exist as long as the pipe raises events.
    virtual void SetEventSink(IQLPipeEvents& sink) = 0;
    /// Writes a package into the folder `saveLocation` instead of sending.
    virtual bool MakePackage(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project,
                             const ProjectFiles& files, const ApplicationInfo& application,
                             std::string& saveLocation) = 0;
    /// Progress and outcome are reported as events.
    virtual void SendRuntime(const std::string& deviceName) = 0;
};

/// Registered under the pipe's ProgID followed by ".Validation".
class IQLPipeValidation : public fernwick::Object {
public:
    /// Whether devices of this design target key can be served here.
    virtual bool IsDeviceSupported(const std::string& key) = 0;
    /// Returns True if the device accepts these files. Findings are reported as events.
    virtual bool ValidateFiles(const basic::Ref<vbide::VBProject>& project, const ProjectFiles& files) = 0;
    virtual void SetEventSink(IQLPipeEvents& sink) = 0;
    /// Sets the design target whose limits ValidateFiles applies. Without it, that is the project's.
    virtual void SetDevice(const std::string& key) = 0;
};

/// Registered under the pipe's ProgID followed by ".Configuration".
class IQLPipeConfiguration : public fernwick::Object {
public:
    /// Creates the page for a project with the project's stored values: a loaded, hidden form without a window of its
    /// own, which the settings dialog shows among its pages. Nothing if the pipe has no page. Offsets from the dialog's
    /// corner, in twips.
    virtual basic::Ref<fernwick::Form> CreatePage(const basic::Ref<vbide::VBProject>& project, std::int32_t top,
                                                  std::int32_t left) = 0;
    virtual void ShowPage() = 0;
    virtual void HidePage() = 0;
    /// Whether the user's input can be stored. Informs the user about what cannot.
    virtual bool ValidatePage() = 0;
    /// Stores the input in the project; nothing of it, and says so, if any of it cannot be stored.
    virtual void ApplyPage() = 0;
    /// Unloads the page and releases it and the project.
    virtual void ClosePage() = 0;
    virtual bool HasPage() = 0;
    /// Also its node in the dialog's tree; "" for a pipe without a page.
    virtual std::string PageName() = 0;
};

} // namespace qlpipe
