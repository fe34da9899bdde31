#pragma once
// What a family's pipe says about design targets.
#include "Add-in/platform/pipes.h"
#include "Basic/ref.h"
#include <functional>
#include <string>

namespace qlpipe {

/// A pipe serves the design targets of its family: those whose key begins with the family's name and "-".
class FamilyValidation final : public IQLPipeValidation {
public:
    explicit FamilyValidation(std::string family) : family_(std::move(family)) {}
    bool IsDeviceSupported(const std::string& key) override;
    bool ValidateFiles(const basic::Ref<vbide::VBProject>&, const ProjectFiles&) override { return true; }
    void SetEventSink(IQLPipeEvents&) override {}

private:
    std::string family_;
};

/// Makes a new object of a class.
using ObjectFactory = std::function<basic::Ref<fernwick::Object>()>;

/// Names every class of the shipped pipes with its ProgID, for whoever makes objects by ProgID.
void registerPipes(const std::function<void(const std::string& progId, ObjectFactory make)>& add);

} // namespace qlpipe
