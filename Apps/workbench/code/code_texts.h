#pragma once
// What the user reads of code that is looked for, kept, restored, or changed by another program.

namespace workbench::code_texts {

inline constexpr auto kTitle = "Fernwick Workbench";

// finding and replacing
inline constexpr auto kWentRound = "The search went on from the beginning.",
                      kWentRoundUp = "The search went on from the end.";
inline constexpr auto kNotFound = "\"%1\" was not found in the %2.";
inline constexpr auto kReplaced = "%1 replaced.", kReplacedInModules = "%1 replaced in %2 modules.";
inline constexpr auto kRefused = "Nothing was replaced in %1: see the message.";

// text that survived a crash
inline constexpr auto kOneSurvived = "Unsaved text of one file of %1 survived from %2.";
inline constexpr auto kSurvived = "Unsaved text of %3 files of %1 survived from %2.";
inline constexpr auto kNeverSaved = "a project that was never saved";
inline constexpr auto kChangedOnDisk = "%1 - the file on disk was changed since; a save asks before it replaces that";
inline constexpr auto kGoneFromDisk = "%1 - the file on disk is gone; a save writes it again";
inline constexpr auto kDifferences = "%1 (- on disk, + what survived)";
inline constexpr auto kWhatRestoreDoes = "Restore puts it into the editor as a change that is not saved yet.";
inline constexpr auto kRestore = "&Restore", kDiscard = "&Discard", kLater = "&Keep for Later";
inline constexpr auto kDamaged = "Text that was not saved could not be read again: %1\n\nIt stays in %2";
inline constexpr auto kNotRestored = "The text of %1 could not be restored, and is kept for later: %2";

// files that another program changed
inline constexpr auto kOutsideChanged = "Another program changed these files.";
inline constexpr auto kOutsideGone = "Another program removed these files.";
inline constexpr auto kWhatHappens =
    "Ticked files are read again. The others keep what the editor shows, and a save asks before "
    "it replaces the file.";
inline constexpr auto kWrittenAgain = "The editor keeps what it shows; a save writes the file again.";
inline constexpr auto kOutsideChangedHere = "%1 - you changed it too, which would be lost";
inline constexpr auto kOutsideProject = "%1 - the project is opened again";
inline constexpr auto kOutsideProjectChangedHere =
    "%1 - the project is opened again; what is not saved of it would be lost";
inline constexpr auto kOutsideRemoved = "%1 - removed";
inline constexpr auto kOutsideReload = "&Reload", kOutsideKeep = "&Keep Mine", kOutsideOk = "OK";

// a save over such a file
inline constexpr auto kReplace = "%1 was changed by another program since it was read here.";
inline constexpr auto kWhatReplaces = "Replace it with what the editor holds?";
inline constexpr auto kReplaceIt = "&Replace", kLeaveIt = "&Don't Save";
inline constexpr auto kNotReloaded = "%1 could not be read again: %2";

// text that cannot be kept
inline constexpr auto kNotKept = "What you type can't be kept for the case of a crash; save often: %1";

// what a file cannot hold, and what a project does not declare
inline constexpr auto kMissingCharacter = "The code page of this file has no character \"%1\".";
inline constexpr auto kNotDeclared = "\"%1\" is declared nowhere in this project.";

} // namespace workbench::code_texts
