#pragma once
// Checks before a transfer whether devices of a family accept the files.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/files.h"
#include "Add-in/platform/pipes.h"
#include "Components/QLPipe/pipe_family.h"
#include <string>

namespace qlpipe {

/// A pipe serves the design targets of its family: those whose key begins with the family's name and "-".
class FamilyValidation final : public IQLPipeValidation {
public:
    FamilyValidation(const PipeFamily& family, const fernwick::FileSystemObject& files, fernwick::Classes& classes)
        : family_(family), files_(files), classes_(classes) {}

    bool IsDeviceSupported(const std::string& key) override;
    /// Checks settings and files against the device that was set. Without one, checks against the project's device if
    /// it belongs to this family, otherwise against the family's first design target. Returns false if there is an
    /// error. Hints are reported as warnings.
    bool ValidateFiles(const basic::Ref<vbide::VBProject>& project, const ProjectFiles& files) override;
    void SetEventSink(IQLPipeEvents& sink) override { sink_ = &sink; }
    void SetDevice(const std::string& key) override { device_ = key; }

private:
    const PipeFamily& family_;
    std::string device_;
    const fernwick::FileSystemObject& files_;
    fernwick::Classes& classes_;
    IQLPipeEvents* sink_ = nullptr;
};

} // namespace qlpipe
