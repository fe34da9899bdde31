#pragma once
// The journals of programs that ended without saving, and their descriptions for the user.
#include "Apps/workbench/unsaved/journal_folder.h"
#include "Host/files/journal_file.h"
#include <functional>

namespace workbench {

/// The unsaved text of one component or of a project's own file.
struct Survivor {
    std::shared_ptr<JournalFolder> folder; ///< kept, so that no other program offers it
    QString path;
    host::JournalEntry entry;
    /// The file on disk changed since this text was based on it.
    bool changedOnDisk = false;
};

/// Reads all journals below this folder that no running program owns. Removes those that equal their file, and passes
/// damaged ones to `damaged`.
std::vector<Survivor> survivorsIn(const QString& base,
                                  const std::function<void(const QString& path, const QString& why)>& damaged);
/// The newest text of each component. The older ones are offered another time.
std::vector<Survivor> newestOf(std::vector<Survivor> all);

/// Whether the text is that of a project's own file.
bool isOfProject(const host::JournalEntry& entry);
/// Whether a journal's project, a path or a name, was never saved.
bool isNeverSaved(const std::string& project);

/// Which project, how many files, and when they were written.
QString headlineOf(const std::string& project, const std::vector<Survivor>& all);
QString lineOf(const Survivor& survivor);
/// The differences from the files on disk, for a look before the choice.
QString detailsOf(const std::vector<Survivor>& all);

} // namespace workbench
