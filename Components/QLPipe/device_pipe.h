#pragma once
// The pipe of a family of devices.
#include "Components/QLPipe/package.h"
#include "Components/QLPipe/pipe_family.h"
#include "Components/QLPipe/pipe_messages.h"
#include <optional>

namespace qlpipe {

/// Turns what the driver asks for into a bundle and hands that to a device of the family or to a package. Every outcome is
/// told as an event: a TransferError as SendError, success as SendComplete.
class DevicePipe final : public IQLPipe {
public:
    DevicePipe(const PipeFamily& family, PipeServices services) : family_(family), services_(std::move(services)) {}

    bool SendProject(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project,
                     const ProjectFiles& files, const ApplicationInfo& application) override;
    void SetEventSink(IQLPipeEvents& sink) override { sink_ = &sink; }
    /// `saveLocation` becomes the package's path.
    bool MakePackage(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project,
                     const ProjectFiles& files, const ApplicationInfo& application, std::string& saveLocation) override;
    void SendRuntime(const std::string& deviceName) override;

    /// Installs what a package holds on a device of the design target that it was made for.
    bool SendPackage(const Package& package, const std::string& deviceName);

private:
    /// The transfer answers whether it came to its end; what it throws is told.
    template <class Transfer>
    bool run(Transfer&& transfer);
    /// Tells the errors of the files, all of them. Empty when there is one.
    std::optional<Bundle> checkedBundle(const std::string& deviceName, const ProjectFiles& files,
                                        const ApplicationInfo& application);
    void send(const std::string& deviceName, const basic::Ref<vbide::VBProject>& project, const Bundle& bundle);
    void needOwnDevice(const std::string& deviceName) const;
    void tell(PipeWarning warning, std::initializer_list<std::string> values);

    const PipeFamily& family_;
    PipeServices services_;
    IQLPipeEvents* sink_ = nullptr;
};

} // namespace qlpipe
