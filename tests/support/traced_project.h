#pragma once
// A project of the host's object model in memory. Each member counts as a call and may fail.
#include "Add-in/platform/host.h"
#include "Basic/case_folding.h"
#include "trace.h"
#include <functional>
#include <map>

namespace test {

using basic::Ref;

inline basic::RuntimeError notHere(int number) { return basic::RuntimeError(number, {}, "VBIDE"); }

class TracedWindow : public vbide::Window {
public:
    explicit TracedWindow(Trace& trace) : trace_(trace) {}
    std::string Caption() const override { return caption; }
    bool Visible() const override {
        trace_.read();
        return visible;
    }
    void Visible(bool v) override {
        trace_.effect(caption + (v ? " shown" : " hidden"));
        visible = v;
    }
    vbide::vbext_WindowState WindowState() const override { return state; }
    void WindowState(vbide::vbext_WindowState s) override {
        trace_.effect(caption + " state " + std::to_string(s));
        state = s;
    }
    void SetFocus() override { trace_.effect(caption + " focus"); }
    void Close() override { trace_.effect(caption + " closed"); }

    std::string caption;
    bool visible = false;
    vbide::vbext_WindowState state = vbide::vbext_ws_Maximize;

private:
    Trace& trace_;
};

class TracedCode : public vbide::CodeModule {
public:
    class Pane : public vbide::CodePane {
    public:
        explicit Pane(Trace& trace) : trace_(trace), window(basic::make<TracedWindow>(trace)) {}
        void Show() override { trace_.effect(window->caption + " pane"); }
        Ref<vbide::Window> Window() override { return window; }
        void SetSelection(int l, int c, int el, int ec) override {
            trace_.effect(std::to_string(l) + "," + std::to_string(c) + "-" + std::to_string(el) + "," +
                          std::to_string(ec));
        }
        void GetSelection(int&, int&, int&, int&) const override {}

    private:
        Trace& trace_;

    public:
        Ref<TracedWindow> window;
    };

    TracedCode(Trace& trace, std::string name) : pane(basic::make<Pane>(trace)), trace_(trace) {
        pane->window->caption = std::move(name);
    }
    int CountOfLines() const override {
        trace_.read();
        return lines;
    }
    int CountOfDeclarationLines() const override { return 0; }
    std::string Lines(int, int) const override { return {}; }
    void InsertLines(int, const std::string&) override {}
    void DeleteLines(int, int) override {}
    void ReplaceLine(int, const std::string&) override {}
    int ProcStartLine(const std::string&, vbide::vbext_ProcKind) const override { throw notHere(35); }
    int ProcCountLines(const std::string&, vbide::vbext_ProcKind) const override { throw notHere(35); }
    std::vector<vbide::Member> Members() const override {
        trace_.read();
        return members;
    }
    Ref<vbide::CodePane> CodePane() override {
        trace_.read();
        return pane;
    }

    int lines = 0;
    std::vector<vbide::Member> members;
    Ref<Pane> pane;

private:
    Trace& trace_;
};

class TracedComponent : public vbide::VBComponent {
public:
    TracedComponent(Trace& trace, std::string n, std::string f, vbide::vbext_ComponentType t)
        : name(std::move(n)), file(std::move(f)), type(t), code(basic::make<TracedCode>(trace, name)), trace_(trace) {}
    std::string Name() const override {
        use();
        return name;
    }
    void Name(const std::string& n) override { name = n; }
    vbide::vbext_ComponentType Type() const override {
        use();
        return type;
    }
    std::string FileNames(int) const override {
        use();
        return file;
    }
    int FileCount() const override { return 1; }
    bool IsDirty() const override {
        use();
        return dirty;
    }
    void IsDirty(bool d) override {
        trace_.effect(name + " dirty " + (d ? "1" : "0"));
        dirty = d;
    }
    bool Saved() const override {
        use();
        return !dirty;
    }
    void SaveAs(const std::string& path) override { trace_.effect(name + " saved " + path); }
    void Activate() override {}
    Ref<vbide::CodeModule> CodeModule() override {
        use();
        return code;
    }
    Ref<vbide::Properties> Properties() override {
        use();
        if (!properties) throw notHere(438);
        return properties;
    }
    Ref<vbide::VBForm> Designer() override {
        use();
        return designer;
    }
    bool HasOpenDesigner() const override {
        use();
        return designerOpen;
    }
    Ref<vbide::Window> DesignerWindow() override { return window; }
    Ref<vbide::VBE> VBE() const override { return vbe; }
    Ref<vbide::VBComponents> Collection() const override { return nullptr; }

    std::string name, file;
    vbide::vbext_ComponentType type;
    bool dirty = false, designerOpen = false, removed = false;
    Ref<TracedCode> code;
    Ref<vbide::VBForm> designer;
    /// The designer's.
    Ref<TracedWindow> window;
    Ref<vbide::Properties> properties;
    Ref<vbide::VBE> vbe;

private:
    void use() const {
        trace_.read();
        if (removed) throw notHere(40198);
    }
    Trace& trace_;
};

class TracedComponents : public vbide::VBComponents {
public:
    explicit TracedComponents(Trace& trace) : trace_(trace) {}
    int Count() const override { return int(list.size()); }
    Ref<vbide::VBComponent> Item(int index) const override {
        if (index < 1 || index > Count()) throw notHere(9);
        return list[std::size_t(index - 1)];
    }
    Ref<vbide::VBComponent> Item(const std::string& name) const override {
        trace_.read();
        for (const auto& c : list)
            if (basic::equalNoCase(c->name, name)) return c;
        throw notHere(9);
    }
    std::vector<Ref<vbide::VBComponent>> items() const override {
        trace_.read();
        return {list.begin(), list.end()};
    }
    /// Both call `added` before they return, as the host raises its event.
    Ref<vbide::VBComponent> Add(vbide::vbext_ComponentType type) override {
        trace_.effect("add component " + std::to_string(type));
        return take("New" + std::to_string(list.size() + 1), {}, type);
    }
    Ref<vbide::VBComponent> AddFile(const std::string& path) override {
        trace_.effect("add file " + path);
        return take(path, {}, fileType);
    }
    void Remove(const Ref<vbide::VBComponent>& component) override {
        trace_.effect("remove component " + component->Name());
        std::erase_if(list, [&](const auto& c) { return Ref<vbide::VBComponent>(c) == component; });
        basic::cast<TracedComponent>(component)->removed = true;
    }
    vbide::StartUp StartUpObject() const override {
        trace_.read();
        return startUp;
    }
    void StartUpObject(const vbide::StartUp& s) override {
        trace_.effect("start up " + (s.component ? s.component->Name() : "(none)"));
        startUp = s;
    }
    Ref<TracedComponent> take(const std::string& name, const std::string& file, vbide::vbext_ComponentType type) {
        list.push_back(basic::make<TracedComponent>(trace_, name, file, type));
        const auto taken = list.back();
        if (added) added(taken);
        return taken;
    }

    std::vector<Ref<TracedComponent>> list;
    vbide::StartUp startUp;
    /// Type of components made from files.
    vbide::vbext_ComponentType fileType = vbide::vbext_ct_StdModule;
    std::function<void(const Ref<TracedComponent>&)> added;

private:
    Trace& trace_;
};

class TracedReference : public vbide::Reference {
public:
    TracedReference(Trace& trace, std::string p) : path(std::move(p)), trace_(trace) {}
    std::string Name() const override { return name; }
    std::string Guid() const override {
        trace_.read();
        return guid;
    }
    int Major() const override { return major; }
    int Minor() const override { return minor; }
    std::string FullPath() const override {
        trace_.read();
        if (broken) throw notHere(48);
        return path;
    }
    std::string Description() const override { return {}; }
    bool BuiltIn() const override {
        trace_.read();
        return builtIn;
    }
    bool IsBroken() const override {
        trace_.read();
        return broken;
    }

    std::string name, path, guid;
    int major = 1, minor = 0;
    bool builtIn = false, broken = false;

private:
    Trace& trace_;
};

class TracedReferences : public vbide::References {
public:
    explicit TracedReferences(Trace& trace) : trace_(trace) {}
    int Count() const override { return int(list.size()); }
    Ref<vbide::Reference> Item(int index) const override { return list.at(std::size_t(index - 1)); }
    std::vector<Ref<vbide::Reference>> items() const override {
        trace_.read();
        return {list.begin(), list.end()};
    }
    Ref<vbide::Reference> AddFromGuid(const std::string& guid, int major, int minor) override {
        trace_.effect("reference " + guid + " " + std::to_string(major) + "." + std::to_string(minor));
        return nullptr;
    }
    Ref<vbide::Reference> AddFromFile(const std::string&) override { return nullptr; }
    void Remove(const Ref<vbide::Reference>& reference) override {
        trace_.effect("remove reference " + reference->Name());
        std::erase_if(list, [&](const auto& one) { return Ref<vbide::Reference>(one) == reference; });
    }

    std::vector<Ref<TracedReference>> list;

private:
    Trace& trace_;
};

class TracedProject : public vbide::VBProject {
public:
    TracedProject(Trace& trace, std::string n, std::string f)
        : name(std::move(n)),
          file(std::move(f)),
          components(basic::make<TracedComponents>(trace)),
          references(basic::make<TracedReferences>(trace)),
          trace_(trace) {}
    std::string Name() const override {
        use();
        return name;
    }
    void Name(const std::string& n) override { name = n; }
    std::string FileName() const override {
        use();
        return file;
    }
    bool IsDirty() const override {
        use();
        return dirty;
    }
    void IsDirty(bool d) override {
        use();
        trace_.effects.push_back(name + " dirty " + (d ? "1" : "0"));
        dirty = d;
    }
    bool Saved() const override { return !dirty; }
    std::string ReadProperty(const std::string& section, const std::string& key) const override {
        use();
        const auto value = properties.find({section, key});
        if (value == properties.end()) throw notHere(5);
        return value->second;
    }
    void WriteProperty(const std::string& section, const std::string& key, const std::string& value) override {
        if (readOnly) throw notHere(75);
        trace_.effect(key + "=" + value);
        properties[{section, key}] = value;
        dirty = true;
    }
    std::string StorableText(const std::string& text) const override { return text; }
    void SaveAs(const std::string& path) override {
        trace_.effect(name + " saved " + path);
        dirty = false;
    }
    void AddToolboxProgID(const std::string& progId) override { trace_.effect("toolbox " + progId); }
    Ref<vbide::References> References() override {
        use();
        return references;
    }
    Ref<vbide::VBComponents> VBComponents() override {
        use();
        return components;
    }
    Ref<vbide::VBE> VBE() const override { return nullptr; }

    Ref<TracedComponent> add(const std::string& n, const std::string& f,
                             vbide::vbext_ComponentType t = vbide::vbext_ct_StdModule) {
        components->list.push_back(basic::make<TracedComponent>(trace_, n, f, t));
        return components->list.back();
    }
    std::string stored(const std::string& key) const {
        for (const auto& [at, value] : properties)
            if (at.second == key) return value;
        return "(none)";
    }

    std::string name, file;
    bool dirty = false, readOnly = false, removed = false;
    std::map<std::pair<std::string, std::string>, std::string> properties;
    Ref<TracedComponents> components;
    Ref<TracedReferences> references;

private:
    void use() const {
        trace_.read();
        if (removed) throw notHere(40198);
    }
    Trace& trace_;
};

} // namespace test
