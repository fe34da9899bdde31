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
    /// As the target gives it, in braces.
    std::string CLSID;
    /// The name by which the host knows the control: type library, "Ctl." and class.
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

/// One reference that projects of the device carry.
struct tReference {
    std::string Name;
    std::string GUID;
    /// 1 for a required one.
    std::int32_t Value = 0;
};

/// What a device configuration needs of the rooms below.
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
    /// Makes sure that the design target manager exists.
    explicit clsDeviceConfig(const DeviceServices& services);

    /// The key that was read last, known or not.
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

    /// Fills the object from the target of that key; for an unknown one all but DeviceKey stays.
    void ReadDeviceConfig(const std::string& newDeviceKey);
    /// Copies the list, from index 1, and gives the number of Tavlets, which falls by one for each that could not
    /// be resolved while the list keeps its length: walk the bounds and skip an empty progID.
    std::int32_t GetDeviceTavlets(Array<ValidTavlet>& TavletList) const;
    /// The same of the references.
    std::int32_t GetDeviceReferences(Array<tReference>& ReferenceList) const;

    /// What stands behind the old path of design targets in a key, up to the next backslash.
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
