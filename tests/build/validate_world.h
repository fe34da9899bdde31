#pragma once
// The validator over a project in memory and design targets that the test defines.
#include "compile_world.h"
#include "tests/support/traced_form.h"

namespace test {

struct ValidateWorld : CompileWorld {
    ValidateWorld() {
        targets.known = {"Palm-1"};
        addModule("Module1");
    }
    bool run(const std::string& device = "Palm-1") {
        trace.effects.clear();
        return validate.ValidateProject(project, device);
    }
    Ref<TracedReference> addReference(const std::string& guid, bool broken = false) {
        project->references->list.push_back(basic::make<TracedReference>(trace, "/lib/Some.dll"));
        project->references->list.back()->guid = guid;
        project->references->list.back()->broken = broken;
        return project->references->list.back();
    }
    void dependOn(const std::vector<std::string>& modules) {
        projects.GetQLProject(project)->WriteComponentDependencies(modules);
    }
    std::string status() const { return window->lblStatusText(); }
};

} // namespace test
