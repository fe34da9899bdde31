#pragma once
// The texts about changes that are kept, recovered, or made by another program.

namespace workbench::unsaved_texts {

// recovery after a crash
inline constexpr auto kOneRecovered = "Unsaved changes to one file of %1 were recovered (from %2).";
inline constexpr auto kRecovered = "Unsaved changes to %3 files of %1 were recovered (from %2).";
inline constexpr auto kNeverSaved = "a project that was never saved";
inline constexpr auto kProjectsOwn = "The project's own settings";
inline constexpr auto kChangedOnDisk = "%1 - changed on disk since; saving will ask before overwriting it";
inline constexpr auto kGoneFromDisk = "%1 - no longer on disk; saving will write it again";
inline constexpr auto kDifferences = "%1 (- on disk, + recovered)";
inline constexpr auto kWhatRestoreDoes = "Restore puts the changes into the editor without saving them.\n"
                                         "Discard moves them to files in %1";
inline constexpr auto kNotDiscarded = "The changes could not be moved to %1 and are kept for later: %2";
inline constexpr auto kRestore = "&Restore", kDiscard = "&Discard", kLater = "&Keep for Later";
inline constexpr auto kDamaged = "Unsaved changes could not be recovered: %1\n\nThey remain in %2";
inline constexpr auto kNotRestored = "The changes to %1 could not be restored and are kept for later: %2";

// files that another program changed
inline constexpr auto kOutsideChanged = "These files were changed by another program.";
inline constexpr auto kOutsideGone = "These files were removed by another program.";
inline constexpr auto kWhatHappens = "Checked files are reloaded. The others keep the text in the editor, and saving "
                                     "asks before overwriting the file.";
inline constexpr auto kWrittenAgain = "The editor keeps the text; saving writes the file again.";
inline constexpr auto kOutsideChangedHere = "%1 - reloading loses your unsaved changes";
inline constexpr auto kOutsideProject = "%1 - reloading opens the project again";
inline constexpr auto kOutsideProjectChangedHere =
    "%1 - reloading opens the project again and loses its unsaved changes";
inline constexpr auto kOutsideRemoved = "%1 - removed";
inline constexpr auto kOutsideReload = "&Reload", kOutsideKeep = "&Keep Mine", kOutsideOk = "OK";
inline constexpr auto kNotReloaded = "%1 could not be reloaded: %2";

// saving over such a file
inline constexpr auto kReplace = "%1 was changed by another program since it was opened.";
inline constexpr auto kWhatReplaces = "Overwrite it with the text in the editor?";
inline constexpr auto kReplaceIt = "&Overwrite", kLeaveIt = "&Don't Save";

// the journal
inline constexpr auto kNotKept = "Crash recovery is not available (%1). Save often.";

} // namespace workbench::unsaved_texts
