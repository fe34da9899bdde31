#pragma once
// What the forms that work with a device's pipe have in common.
#include "Add-in/core/modQLInstallInfo.h"
#include "Add-in/core/procedure.h"
#include "Add-in/devices/modDeviceManagement.h"
#include "Add-in/platform/controls.h"
#include "Add-in/platform/pipes.h"
#include "Add-in/platform/platform.h"
#include <optional>

namespace fernwick {

/// What such a form stands on.
struct PipeServices {
    Platform& platform;
    ErrorReport& errors;
    const modQLInstallInfo& install;
    modDeviceManagement& devices;
};

/// A modal progress form without buttons. It has a pipe do its work in its first Activate event, listens to it, and
/// unloads itself.
class PipeForm : public Form, protected qlpipe::IQLPipeEvents {
public:
    StatusBar stsUpdate{this, "stsUpdate"};
    ProgressBar prgbarUpdate{this, "prgbarUpdate"};
    Animation aniSend{this, "aniSend"};
    PictureBox finishedImg{this, "finishedImg", "finished", false};
    PictureBox failedImg{this, "failedImg", "failed", false};

    /// Whether the pipe did in the last run what it was asked for; none where the run ended before it was asked.
    std::optional<bool> LastResult() const { return lastResult_; }

protected:
    explicit PipeForm(const PipeServices& services);

    /// The look of a run that begins. `animation` is a file of the installation.
    void beginRun(const char* animation, const char* status);
    /// Takes the pipe of a family by the family's ProgID. The error of one that can't be created, which the user was
    /// told of.
    basic::ErrObject createPipe(const std::string& pipeClassName);
    /// The form shows only the latest line.
    void AddToProgress(const std::string& text);
    /// The picture of the outcome takes the place of the animation.
    void showEnd(PictureBox& outcome);

    /// The line of an error that ended the run.
    std::string runErrorLine(const basic::ErrObject& error) const;
    /// The line of an error that the pipe told.
    static std::string pipeErrorLine(std::int32_t errorNumber, const std::string& message);

    void SendProgress(const std::string& status, std::int32_t percent) override;
    void Form_Unload() override { pipe_ = nullptr; }
    std::string location(const char* procedure) const { return std::string(typeName()) + "." + procedure; }

    PipeServices use_;
    bool runStarted_ = false;
    std::string deviceName_;
    /// Released when the pipe tells its end, from within its own call.
    basic::Ref<qlpipe::IQLPipe> pipe_;
    std::optional<bool> lastResult_;
};

} // namespace fernwick
