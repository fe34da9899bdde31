#pragma once
// What a family's pipe says about design targets.
#include "Add-in/platform/pipes.h"
#include <string>

namespace qlpipe {

/// A pipe serves the design targets of its family: those whose key begins with the family's name and "-".
class FamilyValidation final : public IQLPipeValidation {
public:
    explicit FamilyValidation(std::string family) : family_(std::move(family)) {}
    bool IsDeviceSupported(const std::string& key) override { return key.starts_with(family_ + "-"); }
    bool ValidateFiles(const basic::Ref<vbide::VBProject>&, const ProjectFiles&) override { return true; }
    void SetEventSink(IQLPipeEvents&) override {}

private:
    std::string family_;
};

} // namespace qlpipe
