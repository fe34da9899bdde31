#pragma once
// The pipe of a device family.
#include "Components/QLPipe/base/pipe_messages.h"
#include "Components/QLPipe/package/listed_files.h"
#include "Components/QLPipe/package/package.h"
#include "Components/QLPipe/pipe_family.h"
#include <optional>

namespace qlpipe {

/// Builds bundles and installs them on a device of the family, or writes them into a package. Every outcome is an
/// event: a TransferError becomes SendError, success becomes SendComplete.
class DevicePipe final : public IQLPipe {
public:
    DevicePipe(const PipeFamily& family, PipeServices services) : family_(family), services_(std::move(services)) {}

    bool SendProject(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project,
                     const ProjectFiles& files, const ApplicationInfo& application) override;
    void SetEventSink(IQLPipeEvents& sink) override { sink_ = &sink; }
    /// Sets `saveLocation` to the package's path.
    bool MakePackage(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project,
                     const ProjectFiles& files, const ApplicationInfo& application, std::string& saveLocation) override;
    void SendRuntime(const std::string& deviceName) override;

    /// Installs a package on a device of the design target for which it was made, after the same checks as for a
    /// project.
    bool SendPackage(const Package& package, const std::string& deviceName);

private:
    /// Runs a transfer, which returns whether it completed. A TransferError that it throws becomes an event.
    template <class Transfer>
    bool run(Transfer&& transfer);
    /// Reports all errors of the settings and files as events. Returns nothing if there are any.
    std::optional<Bundle> checkedBundle(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project,
                                        const ProjectFiles& files, const ApplicationInfo& application);
    /// Raises the errors, and on request the hints. Returns false if there is an error.
    bool report(const FileListing& listing, bool withHints);
    void send(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project, const Bundle& bundle);
    void needOwnDevice(const std::string& deviceName) const;
    void warn(PipeWarning warning, MessageValues values);
    void warnOfSharedCreator(DeviceStorage& device, const Bundle& bundle);

    const PipeFamily& family_;
    PipeServices services_;
    IQLPipeEvents* sink_ = nullptr;
};

} // namespace qlpipe
