#pragma once
// One run of a device's pipe.
#include "Add-in/deploy/pipe_services.h"
#include "Add-in/platform/pipes.h"
#include <optional>

namespace fernwick {

class PipeForm;

/// Runs a pipe, receives its events and shows them in a dialog.
class PipeRun : public qlpipe::IQLPipeEvents {
public:
    PipeRun(const PipeRun&) = delete;

    virtual void run() = 0;
    /// Called when the dialog is unloaded.
    virtual void release() { pipe_ = nullptr; }
    /// Whether the pipe succeeded; empty if the run ended before the pipe was called.
    std::optional<bool> lastResult() const { return lastResult_; }

protected:
    PipeRun(const PipeServices& services, PipeForm& dialog) : pipeServices_(services), dialog_(dialog) {}

    /// Shows the beginning of the run. `animation` is a file of the installation.
    void showBeginning(const char* animation, const char* status);
    /// Creates a family's pipe by the family's ProgID. Returns the error of a failure, which the user has been shown.
    basic::ErrObject createPipe(const std::string& pipeClassName);
    /// The line of an error that ended the run.
    std::string runErrorLine(const basic::ErrObject& error) const;
    /// The line of an error that the pipe reported.
    static std::string pipeErrorLine(std::int32_t errorNumber, const std::string& message);
    std::string location(const char* procedure) const;

    void SendProgress(const std::string& status, std::int32_t percent) override;

    PipeServices pipeServices_;
    PipeForm& dialog_;
    std::string deviceName_;
    /// Released when the pipe reports its end, from within its own call.
    basic::Ref<qlpipe::IQLPipe> pipe_;
    std::optional<bool> lastResult_;
};

} // namespace fernwick
