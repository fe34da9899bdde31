#pragma once
// What devices of a family can take, told before anything is sent.
#include "Add-in/platform/classes.h"
#include "Add-in/platform/files.h"
#include "Add-in/platform/pipes.h"
#include <string>

namespace qlpipe {

/// A pipe serves the design targets of its family: those whose key begins with the family's name and "-".
class FamilyValidation final : public IQLPipeValidation {
public:
    FamilyValidation(std::string family, const fernwick::FileSystemObject& files, fernwick::Classes& classes)
        : family_(std::move(family)), files_(files), classes_(classes) {}

    bool IsDeviceSupported(const std::string& key) override;
    /// For the project's own device when it is of this family, else for the family's first design target. False when
    /// there is an error; hints are warnings.
    bool ValidateFiles(const basic::Ref<vbide::VBProject>& project, const ProjectFiles& files) override;
    void SetEventSink(IQLPipeEvents& sink) override { sink_ = &sink; }

private:
    std::string family_;
    const fernwick::FileSystemObject& files_;
    fernwick::Classes& classes_;
    IQLPipeEvents* sink_ = nullptr;
};

} // namespace qlpipe
