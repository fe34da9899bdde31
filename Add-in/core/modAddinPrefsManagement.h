#pragma once
// Preferences of the user and of the machine, each a registry value. They are read on demand and written immediately.
#include "Add-in/core/modRegistry2.h"
#include "Add-in/core/procedure.h"
#include "Add-in/platform/command_bars.h"
#include "Basic/collection.h"

namespace fernwick {

/// A preference that can't be read has its default, and a write that fails is ignored: registry errors are not
/// reported. GetZoomWinState, GetStartTutorial and their setters have no trap, so conversion errors leave them.
class modAddinPrefsManagement {
public:
    modAddinPrefsManagement(modRegistry2& registry, ErrorReport& errors) : registry_(registry), errors_(errors) {}

    /// Keys of the design targets ticked in My Devices.
    std::vector<std::string> gMyDevices;
    void loadMyDevices();
    /// Returns False only after an error.
    bool saveMyDevices();

    /// 0 or 1. Any other stored value is replaced by 1.
    std::int32_t GetZoomWinState();
    void SetZoomWinState(std::int32_t state);

    /// Whether the introduction is shown at start-up, for all users of the machine.
    bool GetStartTutorial();
    void SetStartTutorial(bool value);

    bool GetQuinloftCompileWarning();
    void SetQuinloftCompileWarning(bool value);

    /// Twips; -1 if no width is stored.
    std::int32_t GetRecentProjColWidth();
    void SetRecentProjColWidth(std::int32_t width);

    std::int32_t GetProjectManagerState();
    void SetProjectManagerState(std::int32_t state);

    /// Reads the groups of the toolbox: names are categories, data their positions. Returns False, and empty lists, if
    /// none are stored.
    bool CreateTavletCategoryList(basic::Collection<std::string>& namesByData,
                                  basic::Collection<std::string>& dataByName);

    /// Stores a toolbar's position and visibility under its name.
    void SaveToolbarState(const basic::Ref<office::CommandBar>& bar);
    /// Restores them. Stops and returns False at the first value that is not stored as a text; values already set are
    /// kept.
    bool ReadToolbarState(const basic::Ref<office::CommandBar>& bar);

private:
    void readMyDevices(std::uint32_t key);
    std::int32_t storedColumnWidth();
    void storeNumber(const char* name, std::int32_t number);

    modRegistry2& registry_;
    ErrorReport& errors_;
};

} // namespace fernwick
