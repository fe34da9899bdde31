#pragma once
// The resource files that a component's designer refers to.
#include "Host/files/property_value.h"
#include "Host/files/resource_file.h"
#include "Host/files/text_file.h"
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host {

class Component;
class Project;

/// Records are appended to the form's own file in memory, so that existing ones keep their offsets. The file is written
/// when the form is saved, before the form that refers to it.
class FormResources {
public:
    explicit FormResources(Component& component) : component_(component) {}

    /// Returns the companion of a source file on disk, in any letter case; "" if there is none.
    static std::string onDisk(const std::string& sourcePath);

    /// The file that the form refers to by this name; null if it does not exist.
    std::shared_ptr<const ResourceFile> find(const std::string& name);
    /// Appends a record to the form's own file. Errors as readFile.
    ResourceReference add(const std::string& record);

    /// Writes the form's own file beside the form's new path, unless the form is not saved elsewhere and refers to no
    /// new record. Returns false if the form must not be saved, because that was cancelled. Errors as atomicSave.
    bool save(Project& project, const std::string& target);
    /// Called if the form could not be saved elsewhere after all: it refers to its old resources again.
    void formNotSaved();

    /// The records that a crash would lose. Of a component without a file, all of its template's too.
    UnsavedRecords unsaved();
    /// Discards all other new records.
    void restore(const UnsavedRecords& records);

    /// Forgets what was read, so that the files are read again.
    void reread() { read_.clear(); }
    /// Forgets the new records too.
    void discard();

private:
    /// The form's own file, once records were added to it.
    struct Own {
        std::string name;
        std::vector<std::string> formerNames; ///< to which undone changes refer after the form was saved elsewhere
        std::shared_ptr<const ResourceFile> file;
        std::optional<FileStamp> stamp; ///< none if there is no such file yet
        std::size_t newFrom = 0;        ///< records from here on are not in the file
        bool isNamed(std::string_view fileName) const;
    };
    Own& own();
    std::size_t endOfReferences() const;
    bool isNeeded() const;
    bool write(Project& project, const std::string& path, const std::optional<FileStamp>& asRead);
    bool copy(Project& project, const std::string& target, bool needed);
    void renameReferences();

    Component& component_;
    std::optional<Own> own_, copied_; ///< copied_: the one that was copied by the last save
    std::map<std::string, std::shared_ptr<const ResourceFile>> read_; // by path
};

} // namespace host
