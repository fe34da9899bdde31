#pragma once
// The host in memory. Each member counts as a call and may fail.
#include "Add-in/platform/classes.h"
#include "traced_project.h"
#include <functional>

namespace test {

/// A command of the host's menus.
class TracedControl : public office::CommandBarControl {
public:
    TracedControl(Trace& trace, std::string n, std::function<void()> execute = {})
        : name(std::move(n)), execute_(std::move(execute)), trace_(trace) {}
    int Id() const override { return 0; }
    int Index() const override { return 1; }
    office::MsoControlType Type() const override { return office::msoControlButton; }
    std::string Caption() const override { return name; }
    void Caption(const std::string&) override {}
    std::string Tag() const override { return tag; }
    void Tag(const std::string& t) override { tag = t; }
    std::string ToolTipText() const override { return {}; }
    void ToolTipText(const std::string&) override {}
    bool BeginGroup() const override { return false; }
    void BeginGroup(bool) override {}
    bool Enabled() const override { return true; }
    void Enabled(bool) override {}
    bool Visible() const override { return true; }
    void Visible(bool) override {}
    office::MsoButtonStyle Style() const override { return office::msoButtonAutomatic; }
    void Style(office::MsoButtonStyle) override {}
    void PasteFace() override {}
    Ref<office::CommandBar> Parent() const override { return nullptr; }
    Ref<office::CommandBarControls> Controls() override { throw notHere(438); }
    void Delete() override {}
    void Execute() override {
        trace_.effect(name);
        if (execute_) execute_();
    }

    std::string name, tag;

private:
    std::function<void()> execute_;
    Trace& trace_;
};

class TracedAddIn : public vbide::AddIn {
public:
    TracedAddIn(Trace& trace, std::string progId, bool c) : connected(c), progId_(std::move(progId)), trace_(trace) {}
    std::string ProgId() const override {
        trace_.read();
        return progId_;
    }
    std::string Description() const override { return {}; }
    bool Connect() const override {
        trace_.read();
        return connected;
    }
    void Connect(bool c) override {
        trace_.effect(progId_ + (c ? " connected" : " disconnected"));
        connected = c;
    }
    bool connected;

private:
    std::string progId_;
    Trace& trace_;
};

class TracedAddIns : public vbide::Addins {
public:
    explicit TracedAddIns(Trace& trace) : trace_(trace) {}
    int Count() const override { return int(list.size()); }
    Ref<vbide::AddIn> Item(const std::string& progId) const override {
        trace_.read();
        for (const auto& addIn : list)
            if (addIn->ProgId() == progId) return addIn;
        throw notHere(9);
    }
    std::vector<Ref<vbide::AddIn>> items() const override {
        trace_.read();
        return {list.begin(), list.end()};
    }
    std::vector<Ref<TracedAddIn>> list;

private:
    Trace& trace_;
};

/// Creates documents by their ProgID, as the host does.
class TracedWindows : public vbide::Windows {
public:
    TracedWindows(Trace& trace, std::function<Ref<fernwick::Object>(const std::string&)> create)
        : trace_(trace), create_(std::move(create)) {}
    Ref<vbide::Window> CreateToolWindow(const Ref<vbide::AddIn>&, const std::string& progId, const std::string& caption,
                                        const std::string& guid, Ref<fernwick::Object>& document) override {
        trace_.effect("window " + progId + " " + guid);
        document = create_(progId);
        last = basic::make<TracedWindow>(trace_);
        last->caption = caption;
        last->visible = true;
        list.push_back(last);
        return last;
    }
    std::vector<Ref<vbide::Window>> items() const override { return {list.begin(), list.end()}; }

    Ref<TracedWindow> last;
    std::vector<Ref<TracedWindow>> list;

private:
    Trace& trace_;
    std::function<Ref<fernwick::Object>(const std::string&)> create_;
};

/// Returns one source of each kind and records what it is for.
class TracedEvents : public vbide::Events {
public:
    explicit TracedEvents(Trace& trace) : trace_(trace) {}
    Ref<vbide::VBProjectsEvents> VBProjectsEvents() override { return give("projects", projects); }
    Ref<vbide::VBComponentsEvents> VBComponentsEvents(const Ref<vbide::VBProject>& p) override {
        return give("components of " + p->Name(), components);
    }
    Ref<vbide::ReferencesEvents> ReferencesEvents(const Ref<vbide::VBProject>& p) override {
        return give("references of " + p->Name(), references);
    }
    Ref<vbide::VBControlsEvents> VBControlsEvents(const Ref<vbide::VBProject>& p, const Ref<vbide::VBForm>&) override {
        if (refused != 0) throw notHere(refused);
        return give("controls in " + p->Name(), controls);
    }
    Ref<vbide::CommandBarEvents> CommandBarEvents(const Ref<office::CommandBarControl>& control) override {
        const auto source = give("item " + nameOf(*control.shared()), basic::make<vbide::CommandBarEvents>());
        items.push_back({source, control});
        return source;
    }
    /// The item of a source; Nothing for another source.
    Ref<office::CommandBarControl> itemOf(const Ref<vbide::CommandBarEvents>& source) const {
        for (const auto& [known, item] : items)
            if (known == source) return item;
        return nullptr;
    }
    Ref<vbide::FileControlEvents> FileControlEvents(const Ref<vbide::VBProject>& p) override {
        return p ? give("files of " + p->Name(), files) : give("all files", allFiles);
    }
    Ref<vbide::VBBuildEvents> VBBuildEvents() override { return give("build", build); }

    std::vector<std::pair<Ref<vbide::CommandBarEvents>, Ref<office::CommandBarControl>>> items;
    /// The error raised for form designers; 0 for none.
    int refused = 0;
    Ref<vbide::VBProjectsEvents> projects = basic::make<vbide::VBProjectsEvents>();
    Ref<vbide::VBComponentsEvents> components = basic::make<vbide::VBComponentsEvents>();
    Ref<vbide::ReferencesEvents> references = basic::make<vbide::ReferencesEvents>();
    Ref<vbide::VBControlsEvents> controls = basic::make<vbide::VBControlsEvents>();
    Ref<vbide::FileControlEvents> files = basic::make<vbide::FileControlEvents>();
    Ref<vbide::FileControlEvents> allFiles = basic::make<vbide::FileControlEvents>();
    Ref<vbide::VBBuildEvents> build = basic::make<vbide::VBBuildEvents>();

private:
    /// Toolbar buttons are named by their tip.
    static std::string nameOf(const office::CommandBarControl& control) {
        const auto caption = control.Caption();
        return caption.empty() ? control.ToolTipText() : caption;
    }
    template <class T>
    Ref<T> give(const std::string& what, const Ref<T>& source) {
        trace_.effect("sink: " + what);
        return source;
    }
    Trace& trace_;
};

class TracedProjects : public vbide::VBProjects {
public:
    explicit TracedProjects(Trace& trace) : trace_(trace) {}
    int Count() const override {
        trace_.read();
        return int(list.size());
    }
    Ref<vbide::VBProject> Item(int index) const override { return list.at(std::size_t(index - 1)); }
    std::vector<Ref<vbide::VBProject>> items() const override { return {list.begin(), list.end()}; }
    Ref<vbide::VBProject> AddFromFile(const std::string& path, bool exclusive) override {
        trace_.effect("open " + path + (exclusive ? " alone" : ""));
        if (exclusive) list.clear();
        list.push_back(basic::make<TracedProject>(trace_, path, path));
        if (opened) opened(list.back());
        return list.back();
    }
    Ref<vbide::VBProject> AddFromTemplate(const std::string& path, bool exclusive) override {
        return AddFromFile(path, exclusive);
    }
    void Remove(const Ref<vbide::VBProject>& project) override {
        std::erase_if(list, [&](const auto& p) { return Ref<vbide::VBProject>(p) == project; });
    }
    std::vector<Ref<TracedProject>> list;
    std::function<void(const Ref<TracedProject>&)> opened;

private:
    Trace& trace_;
};

class TracedVbe : public vbide::VBE {
public:
    explicit TracedVbe(Trace& trace, std::function<Ref<fernwick::Object>(const std::string&)> create = {})
        : trace_(trace),
          events(basic::make<TracedEvents>(trace)),
          addins(basic::make<TracedAddIns>(trace)),
          projects(basic::make<TracedProjects>(trace)),
          windows(basic::make<TracedWindows>(trace, std::move(create))) {
        addins->list.push_back(basic::make<TracedAddIn>(trace, "QLVBAddIn.Connect", true));
    }
    Ref<vbide::Events> Events() override {
        trace_.read();
        return events;
    }
    Ref<vbide::Addins> Addins() override {
        trace_.read();
        return addins;
    }
    Ref<vbide::VBProjects> VBProjects() override {
        trace_.read();
        return projects;
    }
    Ref<vbide::Windows> Windows() override {
        trace_.read();
        return windows;
    }
    Ref<office::CommandBars> CommandBars() override { return bars; }
    Ref<vbide::VBProject> ActiveVBProject() const override {
        trace_.read();
        return active;
    }
    void ActiveVBProject(const Ref<vbide::VBProject>& project) override {
        trace_.effect("active " + project->Name());
        active = project;
    }
    Ref<vbide::VBComponent> SelectedVBComponent() const override {
        trace_.read();
        return selected;
    }
    std::string TemplatePath() const override { return templatePath; }

    /// Acts as the host's Remove Project command.
    void removeActive() {
        projects->Remove(active);
        if (const auto gone = basic::cast<TracedProject>(active)) gone->removed = true;
        active = projects->list.empty() ? nullptr : Ref<vbide::VBProject>(projects->list.back());
    }

private:
    Trace& trace_;

public:
    Ref<TracedEvents> events;
    Ref<TracedAddIns> addins;
    Ref<TracedProjects> projects;
    Ref<TracedWindows> windows;
    Ref<office::CommandBars> bars;
    Ref<vbide::VBProject> active;
    Ref<vbide::VBComponent> selected;
    std::string templatePath = "/vb/Template";
};

} // namespace test
