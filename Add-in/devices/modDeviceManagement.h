#pragma once
// The known design targets, and which of them this machine can serve.
#include "Add-in/core/procedure.h"
#include "Add-in/platform/classes.h"
#include "Add-in/platform/design_targets.h"

namespace fernwick {

/// Owns the add-in's design target manager, which is created when first needed. If that fails, the error is reported
/// and there are no targets. Each procedure reports its first error and returns.
class modDeviceManagement {
public:
    modDeviceManagement(Classes& classes, ErrorReport& errors) : classes_(classes), errors_(errors) {}

    /// Nothing until needed, or if it could not be created.
    basic::Ref<designtargetaccess::IQLDesignTargetMgr> gDesignTargetMgr;
    void initDesignTargetMgr();

    /// Whether the target's pipe can serve it on this machine.
    bool IsValidDevice(const std::string& key);
    /// Keys of the usable targets in the library's order. Targets whose pipe validation can't be created are silently
    /// left out, whatever `showErrors` is.
    std::vector<std::string> GetDesignTargets(bool showErrors);
    std::vector<std::string> CreateValidDesignTargetList(bool showErrors);
    /// Number of known targets, usable or not; but 0 if none is usable.
    std::int32_t GetNumDesignTargets();
    /// Returns the text without "&".
    static std::string StripAcceleratorInfo(const std::string& text);
    /// ProgID of the target's pipe; "" for an unknown key.
    std::string GetPipeNameForDevice(const std::string& key);
    /// Display name with its accelerator; "" for an unknown key.
    std::string GetDeviceName(const std::string& key);

    /// Returns the target of a key, Nothing for an unknown one. No trap.
    basic::Ref<designtargetaccess::IQLDesignTarget> GetDesignTarget(const std::string& key);

private:
    bool hasManager();
    bool isSupported(const std::string& pipe, const std::string& key);

    Classes& classes_;
    ErrorReport& errors_;
};

} // namespace fernwick
