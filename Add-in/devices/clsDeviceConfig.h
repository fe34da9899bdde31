#pragma once
// A snapshot of one design target.
#include "Add-in/core/array.h"
#include "Add-in/core/modAddinPrefsManagement.h"
#include "Add-in/core/modReferencesManagement.h"
#include "Add-in/devices/modDeviceManagement.h"
#include "Add-in/platform/interaction.h"

namespace fernwick {

/// One supported control.
struct ValidTavlet {
    /// In braces, as given by the target.
    std::string CLSID;
    /// The host's name of the control: type library, "Ctl." and class.
    std::string VBProgID;
    /// The registered ProgID; "" for a control that could not be resolved.
    std::string progID;
    /// The type library's name and "Ctl".
    std::string TypeLibName;
    /// File of the type library.
    std::string FileName;
    /// Group in the toolbox and the settings.
    std::string CategoryName;
};

/// A reference of the device's projects.
struct tReference {
    std::string Name;
    std::string GUID;
    /// 1 if required.
    std::int32_t Value = 0;
};

/// The dependencies of a device configuration.
struct DeviceServices {
    ErrorReport& errors;
    Interaction& user;
    const Classes& classes;
    modRegistry2& registry;
    modAddinPrefsManagement& prefs;
    modReferencesManagement& references;
    modDeviceManagement& devices;
};

class clsDeviceConfig {
public:
    /// Creates the design target manager if necessary.
    explicit clsDeviceConfig(const DeviceServices& services);

    /// The key that was last read, even if unknown.
    std::string DeviceKey;
    /// Display name with its accelerator.
    std::string DeviceName;
    /// Client size of a new form in device pixels; -1 for none.
    std::int32_t defaultFormHeight = 0, DefaultFormWidth = 0;
    /// Back colour of a new form; 0 for none.
    std::int32_t DefaultFormColor = 0;
    std::string RequiredPipeProgID;
    std::int32_t TavletStyleID = 0;
    std::string DefaultFontName;
    /// Points.
    std::int32_t DefaultFontSize = 0;
    /// Bit 0 bold, bit 1 italic.
    std::int32_t DefaultFontStyle = 0;

    /// Reads the target with this key. For an unknown key only DeviceKey changes.
    void ReadDeviceConfig(const std::string& newDeviceKey);
    /// Copies the list, from index 1, and returns the number of resolved Tavlets. The list also contains those that
    /// could not be resolved: iterate over its bounds and skip an empty progID.
    std::int32_t GetDeviceTavlets(Array<ValidTavlet>& TavletList) const;
    /// Does the same for references.
    std::int32_t GetDeviceReferences(Array<tReference>& ReferenceList) const;

    /// Returns the part of a key after the old path of design targets, up to the next backslash.
    static std::string GetOSName(const std::string& key);

private:
    void readFields(Procedure& here, const designtargetaccess::IQLDesignTarget& target);
    void ReadSupportedTavlets(const designtargetaccess::IQLDesignTarget& target);
    void ReadSupportedReferences(const designtargetaccess::IQLDesignTarget& target);
    void resolveTavlet(Procedure& here, ValidTavlet& tavlet);
    void describeTavlet(Procedure& here, ValidTavlet& tavlet, const TypeLibInfo& library);
    void leaveOutTavlet(Procedure& here, std::string_view text, const ValidTavlet& tavlet);
    void orderByGroup(Procedure& here, const Array<ValidTavlet>& work);

    DeviceServices services_;
    std::int32_t tavletCount_ = 0, referenceCount_ = 0;
    Array<ValidTavlet> tavlets_;
    Array<tReference> references_;
};

} // namespace fernwick
