#pragma once
// Installs the Tamarik runtime on a device.
#include "Add-in/deploy/PipeForm.h"
#include "Add-in/deploy/runtime_run.h"

namespace fernwick {

class frmSendRuntimeToDevice : public PipeForm {
public:
    explicit frmSendRuntimeToDevice(const PipeServices& services);
    const char* typeName() const override { return "frmSendRuntimeToDevice"; }

    /// `DeviceName` is a design target's key. Failures are shown in boxes; LastResult returns whether the pipe reported
    /// that it completed.
    void SendRuntimeToDevice(const std::string& DeviceName);

private:
    ErrorReport& errors_;
    RuntimeRun run_;
};

} // namespace fernwick
