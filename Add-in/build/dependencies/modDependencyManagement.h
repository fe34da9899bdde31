#pragma once
// The files that are sent to a device with the compiled image: the user's list of files, and the fonts that forms use.
#include "Add-in/build/dependencies/font_file.h"
#include "Add-in/build/dependencies/resource_list.h"
#include "Add-in/build/messages/modCompileErrorManagement.h"
#include "Add-in/commands/modMenuManagement.h"
#include "Add-in/core/modQLInstallInfo.h"
#include "Add-in/platform/controls.h"
#include "Add-in/project/clsQLProject.h"
#include "Basic/collection.h"

namespace fernwick {

/// The services that modDependencyManagement uses.
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

    // The list in memory.
    static void ClearDependencyList(tResourceList& list);
    /// Whether an entry has exactly this name.
    static bool ResourceinDependencyList(const std::string& name, const tResourceList& list);
    /// Appends the resource if it has a name.
    static void AddDependency(const tResource& resource, tResourceList& list);
    /// Returns the index of the first entry of this name, regardless of case; -1 for none.
    static std::int32_t FindResourceIndex(const std::string& name, const tResourceList& list);
    /// Does nothing for -1; error 9 for any other index outside the list.
    static void RemoveDependency(std::int32_t index, tResourceList& list);

    // The list that is stored in the project.
    /// Returns as many entries as are stored; one that cannot be read is blank. A missing file has the size 0.
    tResourceList ReadProjectDependencies(const Project& project);
    void WriteProjectDependencies(const Project& project, const tResourceList& list);
    void ClearProjectDependencies(const Project& project);
    /// Whether all files exist: fonts in the fonts folder or the project's folder, others in the project's folder.
    bool ValidateDependencyList(const Project& project, const tResourceList& list);
    /// Returns where an entry's file is expected, whether it exists or not. For fonts, the fonts folder takes
    /// precedence.
    std::string PlaceOf(const Project& project, const tResource& entry) const;

    // Files that the user adds.
    /// Lets the user choose files and returns those that exist, each once; none after Cancel.
    tResourceList GetNewDependency(const Project& project);
    /// Returns the entries of those files that exist, each once. A name that cannot be stored is refused with a box.
    tResourceList newDependencies(const Project& project, const std::vector<std::string>& paths);
    /// Returns the entry of a file. A file outside the project's folder is copied there, replacing a file of that name.
    /// With `allowCopy` the user is asked first, and the entry is blank after No.
    tResource CreateNewDependency(const Project& project, const std::string& path, bool allowCopy);
    /// Returns the part of a path below the folder, with "\" as its separator; "" for any other path.
    std::string CreateRelativePath(const std::string& baseFolder, const std::string& path);

    // Fonts.
    /// Returns the names of the converted fonts that the project's controls need: bare for those in the fonts folder,
    /// else relative to the project's folder. Each missing font gets one warning. The bar and the label belong to a
    /// form that shows the scan.
    std::vector<std::string> ScanProjectForFontDependencies(const QLProject& qlProject, ProgressBar* bar = nullptr,
                                                            Label* status = nullptr);

private:
    struct FontScan;

    tResource readDependency(const Project& project, std::int32_t index);
    bool isFile(Procedure& here, const std::string& path);
    bool canBeListed(Procedure& here, const std::string& folder, const std::string& path);
    bool mayReplace(Procedure& here, const std::string& path, const std::string& replacement);
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
    /// The missing fonts that the last scan reported, by missingFontKey; keys ignore case.
    basic::Collection<std::string> knownMissingFonts_;
};

} // namespace fernwick
