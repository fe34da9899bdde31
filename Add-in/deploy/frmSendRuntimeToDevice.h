#pragma once
// Installs the Tamarik runtime on a device.
#include "Add-in/deploy/PipeForm.h"

namespace fernwick {

class frmSendRuntimeToDevice : public PipeForm {
public:
    explicit frmSendRuntimeToDevice(const PipeServices& services);
    const char* typeName() const override { return "frmSendRuntimeToDevice"; }

    /// `DeviceName` is a design target's key. Everything that goes wrong is told in boxes; LastResult says whether
    /// the pipe told that it completed.
    void SendRuntimeToDevice(const std::string& DeviceName);

protected:
    void Form_Activate() override;

private:
    void fail(const basic::ErrObject& error);

    void SendComplete() override;
    void SendError(std::int32_t errorNumber, const std::string& message) override;
    /// A runtime has no messages to keep a warning with.
    void SendWarning(const std::string&, const std::string&, std::int32_t, std::int32_t) override {}
};

} // namespace fernwick
