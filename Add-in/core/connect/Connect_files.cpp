// Projects of older versions must be converted before use, and must not be written.
#include "Add-in/core/connect/Connect.h"
#include "Add-in/core/connect/connect_texts.h"
#include "Basic/like.h"

namespace fernwick {

/// Reads the file before the host parses it. No trap: the host reports an unreadable file.
void Connect::GlobalFileControlHandler_BeforeLoadFile(basic::Ref<vbide::VBProject> VBProject,
                                                      const std::vector<std::string>&) {
    const std::string path = VBProject->FileName();
    if (path.empty()) return;
    const auto file = services_.files.OpenTextFile(path);
    bool isOld = true, isFernwick = false;
    while (!file->AtEndOfStream()) {
        const std::string line = file->ReadLine();
        if (basic::Like(line, "IsQuinloftProject=True*")) isFernwick = true;
        if (basic::Like(line, "ProjectVersion=*")) isOld = false;
    }
    file->Close();
    if (isOld && isFernwick)
        services_.user.MsgBox(connect_texts::kOldProject, vbExclamation, connect_texts::kOldProjectTitle);
}

/// Keeps the host, without an error, from writing a project that is about to be converted. Projects that are not listed
/// are written as usual.
void Connect::FileControlHandler_RequestWriteFile(basic::Ref<vbide::VBProject> VBProject, const std::string&,
                                                  bool& Cancel) {
    Procedure here{services_.errors, "Connect.FileControlHandler_RequestWriteFile"};
    const auto project = services_.projects.FindQLProject(VBProject);
    if (project && project->IsQuinloftProject() && project->HasOldFormat()) Cancel = true;
}

} // namespace fernwick
