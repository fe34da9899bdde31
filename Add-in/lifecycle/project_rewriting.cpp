#include "Add-in/lifecycle/project_rewriting.h"
#include "Basic/runtime_error.h"

namespace fernwick {

void rewriteProjectFile(FileSystemObject& files, const std::string& path,
                        const std::function<void(TextStream& to)>& write) {
    const auto newText = path + ".converting";
    try {
        const auto file = files.CreateTextFile(newText, true);
        write(*file.operator->());
        file->Close();
        files.MoveFile(newText, path);
    } catch (const basic::RuntimeError&) {
        (void)basic::attempt([&] { files.DeleteFile(newText, true); });
        throw;
    }
}

} // namespace fernwick
