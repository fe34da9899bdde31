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

} // namespace qlpipe
