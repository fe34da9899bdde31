#pragma once
// What pipes need of the world, over a temporary folder.
#include "Components/DesignTargetAccess/design_target_mgr.h"
#include "Components/QLPipe/pipe_family.h"
#include "Host/registry/registry_store.h"
#include "Host/system/classes.h"
#include "Host/system/file_system.h"
#include "tests/support/temp_folder.h"
#include <map>
#include <string>

namespace test {

class FakeEnvironment : public fernwick::Environment {
public:
    std::string GetEnvironmentVariable(const std::string& name) const override {
        const auto found = values.find(name);
        return found == values.end() ? "" : found->second;
    }
    void SetEnvironmentVariable(const std::string& name, const std::string& value) override { values[name] = value; }
    std::map<std::string, std::string> values;
};

/// The machine that pipes run on, with the shipped design targets.
class PipeWorld {
public:
    PipeWorld() {
        keep_.push_back(classes.RegisterClass("DesignTargetAccess.QLDesignTargetMgr", [] {
            return basic::make<designtargetaccess::DesignTargetMgr>(FERNWICK_SOURCE_DIR "/installation");
        }));
        qlpipe::registerPipes(services, [this](const std::string& progId, qlpipe::ObjectFactory make) {
            progIds.push_back(progId);
            keep_.push_back(classes.RegisterClass(progId, std::move(make)));
        });
    }

    template <class T>
    basic::Ref<T> create(const std::string& progId) {
        return basic::cast<T>(classes.CreateObject(progId));
    }

    TempFolder folder;
    FakeEnvironment environment;
    host::FileSystem files;
    host::RegistryStore registry{{folder / "store/user", folder / "store/machine", {}}};
    host::Classes classes{registry};
    qlpipe::PipeServices services{files, classes, registry, environment, folder / "installation"};
    std::vector<std::string> progIds;

private:
    std::vector<std::shared_ptr<void>> keep_;
};

} // namespace test
