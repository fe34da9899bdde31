#pragma once
// The compile driver over a host in memory and a compiler that the test controls.
#include "messages_world.h"
#include "tests/support/fake_compiler.h"

namespace test {

struct CompileWorld : MessagesWorld {
    CompileWorld() {
        messages.createToolWindow();
        files.files["/p/Demo.vbp"] = {"Type=Exe\r\n"};
        set("Quinloft Global", "IsQuinloftProject", "True");
        set("Quinloft Global", "ProjectVersion", "2.0");
        set("Quinloft Global", "LastCompileVersion", "3.5.0 (0624)");
        projects.AddToProjectsList(project);
        registerCompiler();
    }
    void set(const std::string& section, const std::string& key, const std::string& value) {
        project->properties[{section, key}] = value;
    }
    void registerCompiler() {
        registerFactory([this] { return basic::make<FakeCompilerFactory>(compiler); });
    }
    /// Replaces the compiler's class.
    void registerFactory(fernwick::Classes::Factory factory) {
        compilerClass.reset();
        compilerClass = classes.RegisterClass("QLToolkit.CompilerFactory", std::move(factory));
    }
    Ref<TracedComponent> addModule(const std::string& name, const std::string& text = "Sub Main()\r\nEnd Sub\r\n") {
        const auto path = "/p/" + name + ".bas";
        files.files[path] = {text};
        const auto component = project->add(name, path);
        component->code->lines = 2;
        return component;
    }
    /// Runs a compile and records its effects in `trace.effects`.
    bool run() {
        trace.effects.clear();
        return compile.CompileProject(project);
    }

    basic::Ref<FakeCompiler> compiler = basic::make<FakeCompiler>(trace);
    std::shared_ptr<void> compilerClass;
};

} // namespace test
