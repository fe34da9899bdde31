#pragma once
// The transfer of a project to a device, or into a package.
#include "Add-in/deploy/deploy_services.h"
#include "Add-in/deploy/pipe_run.h"

namespace fernwick {

class SendRun final : public PipeRun {
public:
    using QLProject = basic::Ref<clsQLProject>;

    SendRun(const PipeServices& pipes, const DeployServices& services, PipeForm& dialog)
        : PipeRun(pipes, dialog), user_(pipes.platform.interaction), services_(services) {}

    void forgetResult() { lastResult_.reset(); }
    void begin(const QLProject& project, bool makePackage, const std::string& deviceName);
    /// Looks up the pipe of the device.
    void choosePipe(const std::string& device) { pipeClassName_ = pipeServices_.devices.GetPipeNameForDevice(device); }
    void run() override;
    void release() override;

private:
    // The run
    void send();
    tResourceList readDependencies();
    void transfer(const std::string& projectPath, const qlpipe::ProjectFiles& files);
    void makePackage(const std::string& projectPath, const qlpipe::ProjectFiles& files);
    void sendProject(const std::string& projectPath, const qlpipe::ProjectFiles& files);
    qlpipe::ApplicationInfo application(const std::string& projectPath) const;
    bool ValidateForDevicePipe(const qlpipe::ProjectFiles& files);
    void commonEnd();

    // Failures
    void generalFailure(const basic::ErrObject& error);
    void missingFiles();
    void validationFailed();
    void userCanceled();
    void packageFailed();
    void deploymentFailed();
    void boxOfFailure(const char* seeMessages, const char* otherwise);
    void showHostMessages();
    void deleteTempIcon();

    // The pipe's events
    void SendComplete() override;
    void SendError(std::int32_t errorNumber, const std::string& message) override;
    void SendWarning(const std::string& message, const std::string& source, std::int32_t line,
                     std::int32_t warningNumber) override;

    Interaction& user_;
    DeployServices services_;
    QLProject workingProject_;
    bool makePackageMode_ = false;
    std::string pipeClassName_;
    /// The pipe's copy of the icon; "" while there is none.
    std::string tempIconFile_;
};

} // namespace fernwick
