#pragma once
// The library of design targets, as the add-in sees it.
#include "Add-in/platform/object.h"
#include "Basic/ref.h"
#include <cstdint>
#include <string>
#include <vector>

namespace designtargetaccess {

/// Result of ValidateReference.
struct ReferenceValidity {
    /// The target's projects may contain the reference.
    bool accepted = false;
    /// The target's projects must contain the reference.
    bool required = false;
    bool known() const { return accepted || required; }
};

/// One device platform. Numbers are returned as text.
class IQLDesignTarget : public fernwick::Object {
public:
    virtual std::string Key() const = 0;
    /// Name of the platform; empty for a target that isn't offered.
    virtual std::string PlatformName() const = 0;
    /// Display name, with an "&" for the accelerator.
    virtual std::string Name() const = 0;
    /// Empty for a target without a pipe.
    virtual std::string RequiredPipeProgID() const = 0;
    virtual std::string DefaultFormColor() const = 0;
    virtual std::string DefaultFontSize() const = 0;
    virtual std::string DefaultFormWidth() const = 0;
    virtual std::string DefaultFormHeight() const = 0;
    virtual std::string DefaultFontName() const = 0;
    virtual std::string TavletStyleID() const = 0;
    /// False for an option that the target doesn't have.
    virtual bool GetOption(const std::string& name, std::string& value) const = 0;
    /// Three parallel lists from 0: CLSIDs with braces, ProgIDs, categories.
    virtual void GetSupportedTavlets(std::vector<std::string>& clsids, std::vector<std::string>& progIds,
                                     std::vector<std::string>& categories) const = 0;
    virtual std::int32_t NumSupportedTavlets() const = 0;
    /// GUID texts from 0.
    virtual void GetSupportedReferences(std::vector<std::string>& guids) const = 0;
    virtual std::int32_t NumSupportedReferences() const = 0;
    /// `reference` is a library's GUID in braces or the name of the library.
    virtual ReferenceValidity ValidateReference(const std::string& reference) const = 0;
    /// Whether the target contains the module with this identifier (a GUID in braces).
    virtual bool FindModule(const std::string& moduleId) const = 0;
    /// Whether TabStop is turned off for new controls of this class ("QLButton").
    virtual bool IsTabStopOff(const std::string& className) const = 0;
    /// Two parallel lists from 0 with the defaults of new controls: "Control.Property", and a number after "#" or a
    /// plain text.
    virtual void GetPropertyDefaults(std::vector<std::string>& names, std::vector<std::string>& values) const = 0;
    virtual std::int32_t NumPropertyDefaults() const = 0;
    /// Paths of the target's templates; "" for none.
    virtual std::string VBPTemplate() const = 0;
    virtual std::string FormTemplate() const = 0;
    virtual std::string ModuleTemplate() const = 0;
    virtual std::string ClassModuleTemplate() const = 0;
};

/// Registered as "DesignTargetAccess.QLDesignTargetMgr".
class IQLDesignTargetMgr : public fernwick::Object {
public:
    virtual std::int32_t Count() const = 0;
    /// Called once, right after creation.
    virtual void Initialize() = 0;
    /// False and Nothing for an unknown key.
    virtual bool GetDesignTarget(const std::string& key, basic::Ref<IQLDesignTarget>& target) const = 0;
    virtual bool FindDesignTarget(const std::string& key, std::int32_t& position) const = 0;
    /// From 0; Nothing outside of the range.
    virtual basic::Ref<IQLDesignTarget> GetDesignTargetByIndex(std::int16_t index) const = 0;
};

} // namespace designtargetaccess
