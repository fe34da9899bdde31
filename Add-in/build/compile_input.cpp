// What the compile driver gives to the compiler.
#include "Add-in/build/frmCompile.h"
#include "Add-in/build/messages/build_texts.h"
#include "Add-in/build/type_lib_dll.h"
#include "Basic/like.h"
#include "Basic/text.h"

namespace fernwick {

namespace {

/// The name beside a cached description, or beside a registered library that is no .DLL.
std::string withDllExtension(const FileSystemObject& files, const std::string& path) {
    return path.substr(0, path.size() - files.GetExtensionName(path).size()) + "DLL";
}

} // namespace

void frmCompile::passInput(Procedure& here) {
    here([&] { Compiler.source()->Reset(); });
    tavletFileDependencies_.clear();
    componentDependencies_.clear();
    passReferences(here);
    passComponents(here);
    here([&] {
        const auto& files = use_.platform.files;
        const std::string folder = files.GetParentFolderName(project_->FileName());
        Compiler.source()->SetOutputPath(files.BuildPath(folder, project_->Name()));
    });
    passStartupObject(here);
    passConstants(here);
}

void frmCompile::passReferences(Procedure& here) {
    for (const auto& reference : here.value([&] { return project_->References()->items(); }))
        (void)basic::attempt([&] { passReference(reference); }); // one that fails is left out without a word
}

void frmCompile::passReference(const basic::Ref<vbide::Reference>& reference) {
    const auto& files = use_.platform.files;
    std::string path = reference->FullPath();
    const std::string upper = basic::UCase(path);
    if (reference->BuiltIn() || basic::Like(upper, "*STDOLE2.TLB")) return;
    if (!basic::Like(upper, "*.OCA"))
        return Compiler.source()->AddBuildFile(files.GetAbsolutePathName(path), qltoolkit::ReferencedLibrary);

    if (FindTypeLibDll(use_.registry, reference->Guid(), reference->Major(), reference->Minor(), path) != 0)
        path = withDllExtension(files, path);
    Compiler.source()->AddBuildFile(files.GetAbsolutePathName(path), qltoolkit::ControlLibrary);
}

void frmCompile::passComponents(Procedure& here) {
    const auto& files = use_.platform.files;
    for (const auto& component : here.value([&] { return project_->VBComponents()->items(); }))
        here([&] {
            Compiler.source()->AddBuildFile(files.GetAbsolutePathName(component->FileNames(1)), qltoolkit::SourceFile);
        });
}

void frmCompile::passStartupObject(Procedure& here) {
    const auto startUp = [&] { return project_->VBComponents()->StartUpObject(); };
    if (here.test([&] { return bool(startUp().component); }))
        here([&] { Compiler.source()->SetStartupObject(startUp().component->Name()); });
    else if (here.test([&] { return startUp().isSubMain; }))
        here([&] { Compiler.source()->SetStartupObject("Sub Main"); });
    else
        here([&] { Compiler.source()->SetStartupObject(""); });
}

void frmCompile::passConstants(Procedure& here) {
    const std::string constants = use_.projects.GetConditionalCompilationArguments(project_);
    if (constants.empty()) return;
    here([&] { use_.projects.SetConditionalCompilationArguments(constants, *Compiler.source().operator->()); });
}

void frmCompile::SendAppInfoToCompiler(const basic::Ref<clsQLProject>& qlProject) {
    Procedure here{use_.errors, "frmCompile.SendAppInfoToCompiler"};
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
        if (!value.empty()) here([&, k = key, &v = value] { Compiler.source()->SetVersionInfo(k, v); });
}

} // namespace fernwick
