#pragma once
// One design target of the installation.
#include "Add-in/platform/design_targets.h"
#include "Components/DesignTargetAccess/target_data.h"
#include <string>

namespace designtargetaccess {

class DesignTarget final : public IQLDesignTarget {
public:
    /// `root` is the installation's root folder, which contains the templates.
    DesignTarget(TargetData data, std::string root);

    std::string Key() const override { return data_.key; }
    std::string PlatformName() const override { return data_.platform; }
    std::string Name() const override { return data_.name; }
    std::string RequiredPipeProgID() const override { return data_.pipe; }
    std::string DefaultFormColor() const override { return std::to_string(data_.formColor); }
    std::string DefaultFontSize() const override { return std::to_string(data_.fontSize); }
    std::string DefaultFormWidth() const override { return std::to_string(data_.formWidth); }
    std::string DefaultFormHeight() const override { return std::to_string(data_.formHeight); }
    std::string DefaultFontName() const override { return data_.fontName; }
    std::string TavletStyleID() const override { return std::to_string(data_.style); }
    bool GetOption(const std::string& name, std::string& value) const override;
    void GetSupportedTavlets(std::vector<std::string>& clsids, std::vector<std::string>& progIds,
                             std::vector<std::string>& categories) const override;
    std::int32_t NumSupportedTavlets() const override;
    void GetSupportedReferences(std::vector<std::string>& guids) const override;
    std::int32_t NumSupportedReferences() const override;
    ReferenceValidity ValidateReference(const std::string& reference) const override;
    bool FindModule(const std::string& moduleId) const override;
    bool IsTabStopOff(const std::string& className) const override;
    void GetPropertyDefaults(std::vector<std::string>& names, std::vector<std::string>& values) const override;
    std::int32_t NumPropertyDefaults() const override;
    std::string VBPTemplate() const override { return templatePath(data_.templates.project); }
    std::string FormTemplate() const override { return templatePath(data_.templates.form); }
    std::string ModuleTemplate() const override { return templatePath(data_.templates.module); }
    std::string ClassModuleTemplate() const override { return templatePath(data_.templates.classModule); }

private:
    std::string templatePath(const std::string& relative) const;

    TargetData data_;
    std::string root_;
};

} // namespace designtargetaccess
