#include "Add-in/lifecycle/converted_project_file.h"
#include "Add-in/lifecycle/project_rewriting.h"

namespace fernwick {

namespace {

constexpr std::string_view kGlobal = "[Quinloft Global]", kDevice = "TargetDevice=", kCompileTarget = "CompileTarget",
                           kStyle = "TavletStyleID=";

/// Follows the lines of a project file into its global section and out of it.
class GlobalSection {
public:
    /// Whether this line is a key of the section.
    bool holds(std::string_view line) {
        const bool isHeader = line.starts_with('[') && line.ends_with(']');
        if (!inside_)
            inside_ = line == kGlobal;
        else if (!isHeader)
            return true;
        else
            inside_ = false;
        return false;
    }

private:
    bool inside_ = false;
};

std::string rewritten(const std::string& line, const designtargetaccess::IQLDesignTarget& target) {
    if (line.starts_with(kDevice)) return std::string(kDevice) + target.Key();
    if (line.starts_with(kStyle)) return std::string(kStyle) + target.TavletStyleID();
    const auto divider = line.find('=');
    if (!line.starts_with(kCompileTarget) || divider == line.npos) return line;
    return line.substr(0, divider + 1) + target.Key();
}

} // namespace

void fixConvertedVBP(FileSystemObject& files, const std::string& projectFile,
                     const designtargetaccess::IQLDesignTarget& target) {
    rewriteProjectFile(files, projectFile, [&](TextStream& to) {
        const auto from = files.OpenTextFile(projectFile);
        GlobalSection global;
        while (!from->AtEndOfStream()) {
            const auto line = from->ReadLine();
            to.WriteLine(global.holds(line) ? rewritten(line, target) : line);
        }
        from->Close();
    });
}

std::string storedInProjectFile(FileSystemObject& files, const std::string& projectFile, std::string_view key) {
    const auto file = files.OpenTextFile(projectFile);
    GlobalSection global;
    while (!file->AtEndOfStream()) {
        const auto line = file->ReadLine();
        if (global.holds(line) && line.starts_with(key) && line.substr(key.size()).starts_with('='))
            return line.substr(key.size() + 1);
    }
    return {};
}

} // namespace fernwick
