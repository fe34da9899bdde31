#pragma once
// The real host over a temporary folder with a real registry store.
#include "Host/model/host.h"
#include "Host/registry/registry_store.h"
#include "tests/support/errors.h"
#include "tests/support/sample_project.h"
#include "tests/support/temp_folder.h"
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace test {

class TestHost {
public:
    explicit TestHost(fernwick::Classes* classes = nullptr, const fernwick::Clipboard* clipboard = nullptr) {
        host::HostOptions options;
        options.registry = &registry;
        options.classes = classes;
        options.clipboard = clipboard;
        options.templatePath = folder / "Template";
        options.templateFolders = {folder / "install/VB Toolkit/Template"};
        options.handlerFailed = [this](const basic::ErrObject& error) { failures.push_back(error); };
        options.mayReplaceProjects = [this] { return mayReplaceProjects(); };
        ide = host::Host::create(std::move(options));
    }

    basic::Ref<vbide::VBProject> open(const SampleProject& project) { return openFile(project.writeTo(folder)); }
    basic::Ref<vbide::VBProject> openFile(const std::string& path) { return ide->VBProjects()->AddFromFile(path); }

    /// Stores a default value under HKEY_CLASSES_ROOT.
    void registerText(const std::string& key, const std::string& text) {
        std::uint32_t handle = 0, disposition = 0;
        registry.RegCreateKeyEx(fernwick::HKEY_CLASSES_ROOT, key, fernwick::KEY_ALL_ACCESS, handle, disposition);
        registry.RegSetValueEx(handle, "", fernwick::REG_SZ, text + '\0');
        registry.RegCloseKey(handle);
    }
    /// Registers version 1.0 of a type library.
    void registerLibrary(const std::string& guid, const std::string& path, const std::string& description) {
        registerText("TypeLib\\" + guid + "\\1.0", description);
        registerText("TypeLib\\" + guid + "\\1.0\\0\\win32", path);
    }

    TempFolder folder;
    host::RegistryStore registry{{folder / "store/user", folder / "store/machine", {}}};
    /// Errors that left event handlers.
    std::vector<basic::ErrObject> failures;
    /// Asked before an exclusive opening closes the open projects.
    std::function<bool()> mayReplaceProjects = [] { return true; };
    std::shared_ptr<host::Host> ide;
};

} // namespace test
