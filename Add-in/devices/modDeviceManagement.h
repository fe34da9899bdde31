#pragma once
// Which design targets there are, and which of them are usable on this machine.
#include "Add-in/core/procedure.h"
#include "Add-in/platform/classes.h"
#include "Add-in/platform/design_targets.h"

namespace fernwick {

/// Owns the add-in's one design target manager, which is created on first need and kept. Where it can't be
/// created, its failure is reported and the answers are those of a machine without targets. Every procedure
/// reports its first error and leaves.
class modDeviceManagement {
public:
    modDeviceManagement(Classes& classes, ErrorReport& errors) : classes_(classes), errors_(errors) {}

    /// Nothing until it was needed, and where it could not be created.
    basic::Ref<designtargetaccess::IQLDesignTargetMgr> gDesignTargetMgr;
    void initDesignTargetMgr();

    /// Whether the target's pipe can serve it here.
    bool IsValidDevice(const std::string& key);
    /// Keys of the usable targets in the library's order. A pipe whose validation can't be created leaves its
    /// targets out without a word, whatever `showErrors` says.
    std::vector<std::string> GetDesignTargets(bool showErrors);
    std::vector<std::string> CreateValidDesignTargetList(bool showErrors);
    /// How many targets are known, not how many are usable; but 0 when none is.
    std::int32_t GetNumDesignTargets();
    /// The text without any "&".
    static std::string StripAcceleratorInfo(const std::string& text);
    /// ProgID of the target's pipe; "" for an unknown key.
    std::string GetPipeNameForDevice(const std::string& key);
    /// Display name with its accelerator; "" for an unknown key.
    std::string GetDeviceName(const std::string& key);

    /// The target of a key, Nothing for an unknown one. No trap.
    basic::Ref<designtargetaccess::IQLDesignTarget> GetDesignTarget(const std::string& key);

private:
    bool managerStands();
    bool isSupported(const std::string& pipe, const std::string& key);

    Classes& classes_;
    ErrorReport& errors_;
};

} // namespace fernwick
