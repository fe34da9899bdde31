#pragma once
// Preferences of the user and of the machine, each a registry value. They are read on demand and written at once.
#include "Add-in/core/modRegistry2.h"
#include "Add-in/core/procedure.h"
#include "Add-in/platform/command_bars.h"
#include "Basic/collection.h"

namespace fernwick {

/// A preference that can't be read is its default, and one that can't be written stays: no registry failure is
/// reported. Functions without a trap let errors of conversion out: GetZoomWinState, GetStartTutorial and their
/// setters.
class modAddinPrefsManagement {
public:
    modAddinPrefsManagement(modRegistry2& registry, ErrorReport& errors) : registry_(registry), errors_(errors) {}

    /// Keys of the design targets that the user ticked in My Devices.
    std::vector<std::string> gMyDevices;
    void loadMyDevices();
    /// False only when an error came between.
    bool saveMyDevices();

    /// 0 or 1. What is neither becomes 1 in the store too.
    std::int32_t GetZoomWinState();
    void SetZoomWinState(std::int32_t state);

    /// Whether the introduction shows at start-up. It belongs to the machine.
    bool GetStartTutorial();
    void SetStartTutorial(bool value);

    bool GetQuinloftCompileWarning();
    void SetQuinloftCompileWarning(bool value);

    /// Twips; -1 for no stored width.
    std::int32_t GetRecentProjColWidth();
    void SetRecentProjColWidth(std::int32_t width);

    std::int32_t GetProjectManagerState();
    void SetProjectManagerState(std::int32_t state);

    /// The groups of the toolbox: a name is a category, its data the category's position. False, and both empty,
    /// where none are stored.
    bool CreateTavletCategoryList(basic::Collection<std::string>& namesByData,
                                  basic::Collection<std::string>& dataByName);

    /// Where a toolbar stands and whether it shows, stored under its name.
    void SaveToolbarState(const basic::Ref<office::CommandBar>& bar);
    /// False at the first value that is not stored as a text: those behind it are left out, what was set stays set.
    bool ReadToolbarState(const basic::Ref<office::CommandBar>& bar);

private:
    void readMyDevices(std::uint32_t key);
    std::int32_t storedColumnWidth();
    void storeNumber(const char* name, std::int32_t number);

    modRegistry2& registry_;
    ErrorReport& errors_;
};

} // namespace fernwick
