#include "Add-in/lifecycle/converted_project_file.h"
#include "Add-in/lifecycle/project_lines.h"
#include "Add-in/lifecycle/project_rewriting.h"

namespace fernwick {

namespace {

constexpr std::string_view kDevice = "TargetDevice=", kCompileTarget = "CompileTarget", kStyle = "TavletStyleID=";

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
    auto lines = readProjectLines(files, projectFile);
    return GlobalLines(lines).value(key);
}

} // namespace fernwick
