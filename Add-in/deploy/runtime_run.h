#pragma once
// The installation of the runtime on a device.
#include "Add-in/deploy/pipe_run.h"

namespace fernwick {

class RuntimeRun final : public PipeRun {
public:
    RuntimeRun(const PipeServices& services, PipeForm& dialog) : PipeRun(services, dialog) {}

    void begin(const std::string& deviceName);
    void run() override;

private:
    void fail(const basic::ErrObject& error);

    void SendComplete() override;
    void SendError(std::int32_t errorNumber, const std::string& message) override;
    /// Ignores warnings: they are stored with a project's messages, and the runtime has no project.
    void SendWarning(const std::string&, const std::string&, std::int32_t, std::int32_t) override {}
};

} // namespace fernwick
