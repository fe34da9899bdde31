#pragma once
// What hinders a Visual Basic project on a device.
#include "Add-in/platform/design_targets.h"
#include "Apps/common/checked_program.h"
#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace apps {

enum class HindranceKind : std::uint8_t {
    Control,
    Component,
    Reference,
    Declare,
    Class,
    Function,
    Member,
    Printing,
    Screen
};

/// In the order of reports.
inline constexpr std::array kHindranceKinds{HindranceKind::Control, HindranceKind::Component, HindranceKind::Reference,
                                            HindranceKind::Declare, HindranceKind::Class,     HindranceKind::Function,
                                            HindranceKind::Member,  HindranceKind::Printing,  HindranceKind::Screen};

/// The heading of a group: "Functions and statements".
[[nodiscard]] std::string_view headingOf(HindranceKind kind);

struct Hindrance {
    HindranceKind kind = HindranceKind::Control;
    std::string file;                   ///< full path of a source or of the project file
    std::uint32_t line = 0, column = 0; ///< physical, from 1; 0 for the whole file
    std::uint32_t codeLine = 0;         ///< of the code, from 1; 0 outside of it
    std::string name;                   ///< UTF-8, as the project has it: "Command1 (VB.CommandButton)"
    std::string subject;                ///< without what identifies the place: "VB.CommandButton"
    std::string instead;                ///< what to use instead, or why there is nothing
};

/// What a report needs to know of a device. It may be used in another thread than the target.
struct MigrationDevice {
    MigrationDevice(const designtargetaccess::IQLDesignTarget& target, const CheckedProject& project);

    std::string key;
    double width = 0, height = 0;        ///< of forms, in twips; 0 without a fixed size
    std::vector<std::string> classes;    ///< of controls: "Tavlets.QLLabel"
    std::vector<std::string> references; ///< the GUIDs of the project's libraries that it accepts
};

struct Migration {
    std::string project, device;
    std::size_t files = 0;
    std::vector<Hindrance> hindrances;         ///< by kind, then in the order of the project, then by line
    std::vector<qltoolkit::Diagnostic> errors; ///< of the check; code with errors may have further hindrances

    [[nodiscard]] std::size_t count(HindranceKind kind) const;
};

/// Called before each file and before the check of the program, with the part that is done. It may throw to stop.
using MigrationProgress = std::function<void(std::size_t done, std::size_t total)>;

/// Reads the project's files and writes nothing. The result is the same for any number of threads.
[[nodiscard]] Migration migrationOf(const CheckedProject& project, const MigrationDevice& device,
                                    DescribedLibraries& libraries, const MigrationProgress& progress = {});

} // namespace apps
