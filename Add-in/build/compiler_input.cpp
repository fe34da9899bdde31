#include "Add-in/build/compiler_input.h"
#include "Add-in/build/type_lib_dll.h"
#include "Basic/like.h"
#include "Basic/text.h"

namespace fernwick {

namespace {

/// Returns the path with the extension "DLL".
std::string withDllExtension(const FileSystemObject& files, const std::string& path) {
    return path.substr(0, path.size() - files.GetExtensionName(path).size()) + "DLL";
}

} // namespace

void CompilerInput::pass(Procedure& here, const Project& project) {
    passReferences(here, project);
    passComponents(here, project);
    here([&] {
        const std::string folder = files_.GetParentFolderName(project->FileName());
        compiler_.source()->SetOutputPath(files_.BuildPath(folder, project->Name()));
    });
    passStartupObject(here, project);
    passConstants(here, project);
}

void CompilerInput::passReferences(Procedure& here, const Project& project) {
    for (const auto& reference : here.value([&] { return project->References()->items(); }))
        (void)basic::attempt([&] { passReference(reference); }); // a reference that fails is left out silently
}

void CompilerInput::passReference(const basic::Ref<vbide::Reference>& reference) {
    std::string path = reference->FullPath();
    const std::string upper = basic::UCase(path);
    if (reference->BuiltIn() || basic::Like(upper, "*STDOLE2.TLB")) return;
    if (!basic::Like(upper, "*.OCA"))
        return compiler_.source()->AddBuildFile(files_.GetAbsolutePathName(path), qltoolkit::ReferencedLibrary);

    if (FindTypeLibDll(services_.registry, reference->Guid(), reference->Major(), reference->Minor(), path) != 0)
        path = withDllExtension(files_, path);
    compiler_.source()->AddBuildFile(files_.GetAbsolutePathName(path), qltoolkit::ControlLibrary);
}

void CompilerInput::passComponents(Procedure& here, const Project& project) {
    for (const auto& component : here.value([&] { return project->VBComponents()->items(); }))
        here([&] {
            compiler_.source()->AddBuildFile(files_.GetAbsolutePathName(component->FileNames(1)),
                                             qltoolkit::SourceFile);
        });
}

void CompilerInput::passStartupObject(Procedure& here, const Project& project) {
    const auto startUp = [&] { return project->VBComponents()->StartUpObject(); };
    if (here.test([&] { return bool(startUp().component); }))
        here([&] { compiler_.source()->SetStartupObject(startUp().component->Name()); });
    else if (here.test([&] { return startUp().isSubMain; }))
        here([&] { compiler_.source()->SetStartupObject("Sub Main"); });
    else
        here([&] { compiler_.source()->SetStartupObject(""); });
}

void CompilerInput::passConstants(Procedure& here, const Project& project) {
    const std::string constants = services_.projects.GetConditionalCompilationArguments(project);
    if (constants.empty()) return;
    here([&] {
        const auto compiler = compiler_.source(); // held, because a box may be shown
        services_.projects.SetConditionalCompilationArguments(constants, *compiler);
    });
}

void CompilerInput::SendAppInfoToCompiler(const basic::Ref<clsQLProject>& qlProject) {
    Procedure here{services_.errors, "frmCompile.SendAppInfoToCompiler"};
    const auto info = here.value([&] { return qlProject->GetAppInfo(); });
    const std::pair<const char*, const std::string&> items[] = {
        {"ProductName", info.ProductName},
        {"Major", info.Major},
        {"Minor", info.Minor},
        {"Revision", info.Revision},
        {"Title", info.Title},
        {"Comments", info.Comments},
        {"CompanyName", info.CompanyName},
        {"EXEName", info.ExeName},
        {"LegalCopyright", info.LegalCopyright},
        {"LegalTrademarks", info.LegalTrademarks},
        {"FileDescription", info.FileDescription},
    };
    for (const auto& [key, value] : items)
        if (!value.empty()) here([&, k = key, &v = value] { compiler_.source()->SetVersionInfo(k, v); });
}

} // namespace fernwick
