#pragma once
// What travels to a device with the compiled image: the user's list of files, and the fonts that forms name.
#include "Add-in/build/dependencies/font_file.h"
#include "Add-in/build/dependencies/resource_list.h"
#include "Add-in/build/messages/modCompileErrorManagement.h"
#include "Add-in/commands/modMenuManagement.h"
#include "Add-in/core/modQLInstallInfo.h"
#include "Add-in/platform/controls.h"
#include "Add-in/project/clsQLProject.h"
#include "Basic/collection.h"

namespace fernwick {

/// What the dependency module stands on.
struct DependencyServices {
    Platform& platform;
    ErrorReport& errors;
    modQLInstallInfo& install;
    modCompileErrorManagement& messages;
    modMenuManagement& menu;
};

class modDependencyManagement {
public:
    using Project = basic::Ref<vbide::VBProject>;
    using QLProject = basic::Ref<clsQLProject>;

    explicit modDependencyManagement(const DependencyServices& services) : services_(services) {}

    // The list, wherever it is kept.
    static void ClearDependencyList(tResourceList& list);
    /// Whether an entry has exactly this name.
    static bool ResourceinDependencyList(const std::string& name, const tResourceList& list);
    /// Appends it; a resource without a name is left out.
    static void AddDependency(const tResource& resource, tResourceList& list);
    /// Index of the first entry of this name, letter case ignored; -1 for none.
    static std::int32_t FindResourceIndex(const std::string& name, const tResourceList& list);
    /// Nothing for -1. Error 9 outside of the list.
    static void RemoveDependency(std::int32_t index, tResourceList& list);

    // The list that is stored in the project.
    /// As many entries as are stored; one that can't be read is blank. A missing file has the size 0.
    tResourceList ReadProjectDependencies(const Project& project);
    void WriteProjectDependencies(const Project& project, const tResourceList& list);
    void ClearProjectDependencies(const Project& project);
    /// Whether all files are there: fonts in the fonts folder or the project's, others in the project's.
    bool ValidateDependencyList(const Project& project, const tResourceList& list);

    // Files that the user adds.
    /// Lets the user choose files and gives those that are there, each once; none after Cancel.
    tResourceList GetNewDependency(const Project& project);
    /// The entry of a file. One outside of the project's folder is copied there: with `allowCopy` the user is asked
    /// first, and the entry is blank when he refuses. The copy replaces a file of that name.
    tResource CreateNewDependency(const Project& project, const std::string& path, bool allowCopy);
    /// What stands behind the folder in a path below it, with "\" for its separators; "" for any other path.
    std::string CreateRelativePath(const std::string& baseFolder, const std::string& path);

    // Fonts.
    /// Names of the converted fonts that the controls on the project's forms need: bare for those of the fonts
    /// folder, else relative to the project's folder. Each missing one gets one warning. The bar and the label are
    /// those of a form that shows the scan.
    std::vector<std::string> ScanProjectForFontDependencies(const QLProject& qlProject, ProgressBar* bar = nullptr,
                                                            Label* status = nullptr);

private:
    struct FontScan;

    tResource readDependency(const Project& project, std::int32_t index);
    std::string placeOf(const std::string& folder, const tResource& entry) const;
    std::string inFontsFolder(const std::string& name) const;
    std::string projectFolder(const Project& project) const;
    std::int32_t fileSize(const std::string& path) const;

    bool copyToProject(Procedure& here, const std::string& path, const std::string& folder, bool allowCopy);

    bool canBeScanned(Procedure& here, const Project& project);
    void ScanFormforDependencies(const basic::Ref<vbide::VBComponent>& form, FontScan& scan);
    void AddFonttoDependencyList(const basic::Ref<vbide::VBComponent>& form, FontScan& scan, const FontFace& font);
    std::string findFont(Procedure& here, FontScan& scan, const FontFace& font);
    std::string fontEntry(const FontScan& scan, const std::string& path);
    void warnOfMissingFont(Procedure& here, const basic::Ref<vbide::VBComponent>& form, const FontScan& scan,
                           const FontFace& font);
    bool FontAlreadyWarned(const FontFace& font) const;
    void AddFontToKnownMissingList(const FontFace& font);

    int box(Procedure& here, const std::string& text, int buttons);

    DependencyServices services_;
    /// Of the last scan. Keys of a collection: letter case counts for nothing.
    basic::Collection<std::string> knownMissingFonts_;
};

} // namespace fernwick
