// Ten thousand random steps of a user with several projects, for each of twenty seeds. Whatever happens, also while events
// are delivered, the add-in knows exactly the open projects, and no unsaved work goes without a question.
#include "random_world.h"
#include <filesystem>
#include <map>
#include <random>

namespace {

constexpr int kSteps = 10000;
constexpr std::size_t kMostOpen = 5;

class RandomProjects : public testing::TestWithParam<unsigned>, protected test::RandomWorld {
protected:
    RandomProjects() : random_(GetParam()) {
        for (int i = 0; i < 5; ++i) writeProject("P" + std::to_string(i), i % 2 ? "Pocket-1" : "Palm-1");
        writeProject("Far", "Gone-9");
        test::SampleProject("Foreign").form("Form1").writeTo(folder);
        mayReplaceProjects = [this] { return ++questions_, chance(50); };
        answerForms();
        follow();
        ide->connectAddIn("QLVBAddIn.Connect", vbide::vbext_cm_Startup);
    }

    // ---- chance ----
    int below(int limit) { return int(random_() % unsigned(limit)); }
    bool chance(int percent) { return below(100) < percent; }
    template <class T>
    T anyOf(const std::vector<T>& some) {
        return some.empty() ? T{} : some[std::size_t(below(int(some.size())))];
    }

    // ---- the projects on disk ----
    void writeProject(const std::string& name, const std::string& device) {
        test::SampleProject sample(name);
        sample.form("Form1").module("Module9", "Sub Main()\r\nEnd Sub\r\n").handheld(device).writeTo(folder);
    }
    std::string oldProject() {
        test::SampleProject old("Old");
        return old.module("Module9")
            .sections("\r\n[Quinloft Global]\r\nIsQuinloftProject=True\r\nTargetDevice=Palm-1\r\n")
            .writeTo(folder);
    }
    std::string anyFile() {
        const int kind = below(12);
        if (kind == 0) return folder / "Foreign.vbp";
        if (kind == 1) return folder / "Far.vbp";
        if (kind == 2 && !isNameOpen("Old")) return oldProject();
        return folder / ("P" + std::to_string(below(5)) + ".vbp");
    }
    bool isNameOpen(const std::string& name) const {
        const auto all = open();
        return std::any_of(all.begin(), all.end(), [&](const auto& project) {
            return project->Name() == name || files.GetBaseName(project->FileName()) == name;
        });
    }

    // ---- the user ----
    void answerForms() {
        user.whenShown["frmDesignTargetNormal"] = [this](fernwick::Form& form) {
            addIn().chooseTarget.lstQuickDesignTargets.ListIndex(0);
            test::press(form, "btnOK");
        };
        user.whenShown["frmDesignTargetConverterWarning"] = [this](fernwick::Form& form) {
            const auto answer = below(3);
            test::press(form, answer == 0 ? "cmdOpenProject" : answer == 1 ? "cmdRunConverter" : "cmdCancelOpen");
        };
        user.whenShown["frmDesignTargetConverter"] = [this](fernwick::Form& form) {
            addIn().converter.lstDesignTargets.ListIndex(below(2));
            addIn().converter.chkOverwrite.Value(chance(70) ? 1 : 0);
            user.savedAs = {folder / ("copy" + std::to_string(++made_) + "/Far.vbp")};
            test::press(form, "btnOK");
        };
    }
    void answerBoxes() {
        user.answers.clear();
        for (int i = 0; i < 8; ++i) user.answers.push_back(chance(50) ? fernwick::vbYes : fernwick::vbNo);
    }

    // ---- steps ----
    void openAny() {
        const auto path = anyFile();
        const bool exclusive = chance(8);
        if (isNameOpen(files.GetBaseName(path))) return; // a second project of a name is not listed
        ide->VBProjects()->AddFromFile(path, exclusive);
    }
    void openNew() { ide->VBProjects()->AddFromTemplate(folder / "Template/Projects/Fernwick Project.vbp"); }
    void add() {
        static constexpr vbide::vbext_ComponentType kTypes[] = {vbide::vbext_ct_VBForm, vbide::vbext_ct_StdModule,
                                                                vbide::vbext_ct_ClassModule,
                                                                vbide::vbext_ct_UserControl};
        const auto project = anyProject();
        if (project && project->VBComponents()->Count() < 6)
            project->VBComponents()->Add(kTypes[chance(90) ? below(3) : 3]);
    }
    void remove() {
        const auto component = anyComponent();
        if (component) component->Collection()->Remove(component);
    }
    void rename() {
        const auto name = "N" + std::to_string(++made_);
        if (chance(50)) {
            if (const auto project = anyProject()) project->Name(name);
        } else if (const auto component = anyComponent()) {
            component->Name(name);
        }
        const auto one = anyProject(), other = anyProject();
        if (!one || one == other) return;
        EXPECT_NE(basic::attempt([&] { one->Name(other->Name()); }).Number, 0);
    }
    void activate() {
        const auto project = anyProject();
        if (!project) return;
        ide->ActiveVBProject(project);
        const auto component = anyOf(project->VBComponents()->items());
        if (component && chance(50) && isOpen(project)) component->Activate();
    }
    void edit() {
        if (const auto component = anyComponent()) component->CodeModule()->InsertLines(1, "' edited");
        if (const auto project = anyProject()) project->WriteProperty("Other", "key", std::to_string(++made_));
    }
    void convert() {
        const auto active = ide->ActiveVBProject();
        const auto project = addIn().projects.FindQLProject(active);
        if (!project || !project->IsQuinloftProject() || active->FileName().empty()) return;
        addIn().converter.ShowModal();
        addIn().converter.Unload();
    }
    void close() {
        const auto project = anyProject();
        if (!project) return;
        ++questions_; // the front end asks before
        ide->VBProjects()->Remove(project);
    }
    void save() {
        if (const auto project = anyProject()) ide->saveProject(project);
    }
    /// With other projects it would wait for them.
    void showManager() {
        if (ide->VBProjects()->Count() <= 1 && !nested_) addIn().setup.StartProjectManager();
    }
    void step() {
        const int kind = below(1000);
        if (open().size() > kMostOpen) return close();
        if (kind < 110) return openAny();
        if (kind < 130) return openNew();
        if (kind < 300) return add();
        if (kind < 420) return remove();
        if (kind < 560) return rename();
        if (kind < 760) return activate();
        if (kind < 860) return edit();
        if (kind < 870) return convert();
        if (kind < 980) return close();
        if (kind < 995) return save();
        showManager();
    }

    Project anyProject() { return anyOf(open()); }
    Component anyComponent() {
        const auto project = anyProject();
        return project ? anyOf(project->VBComponents()->items()) : nullptr;
    }

    // ---- what is true after each step ----
    /// Receives each event before the add-in does.
    void follow() {
        const auto all = ide->Events()->VBProjectsEvents();
        kept_.push_back(all->ItemAdded.connect([this](const Project& project) {
            const auto components = ide->Events()->VBComponentsEvents(project);
            const auto note = [this, link = std::weak_ptr(project.shared())](const Component& component) {
                if (const auto owner = link.lock()) noteDesigner(owner, component);
            };
            auto& subscriptions = followed_[project.shared()];
            subscriptions.push_back(components->ItemAdded.connect(note));
            subscriptions.push_back(components->ItemActivated.connect(note));
        }));
        kept_.push_back(all->ItemRemoved.connect([this](const Project& project) {
            auto followed = followed_.extract(project.shared());
            if (followed) leaving_.push_back(std::move(followed.mapped())); // a save still shows its designers again
            closed_ = project;
        }));
    }
    void noteDesigner(const Project& project, const Component& component) {
        const auto listed = addIn().projects.FindQLProject(project);
        const bool isWatched = listed && listed->IsQuinloftProject() && project == ide->ActiveVBProject();
        if (isWatched && component->Type() == vbide::vbext_ct_VBForm && component->HasOpenDesigner())
            designer_ = ide->Events()->VBControlsEvents(project, component->Designer());
    }
    static bool isUnsaved(const Project& project) {
        const auto components = project->VBComponents()->items();
        return project->IsDirty() ||
               std::any_of(components.begin(), components.end(), [](const auto& one) { return one->IsDirty(); });
    }
    int questions() const {
        int asked = questions_;
        for (const auto& effect : trace.effects) {
            const bool isForm = effect.starts_with("form "), isBox = effect.starts_with("box ");
            if (isForm || (isBox && (std::stoi(effect.substr(4)) & 7) != fernwick::vbOKOnly)) ++asked;
        }
        return asked;
    }
    void turnUntilEmpty() {
        for (int turns = 0; turns == 0 || (loop.hasTimers() && turns < 50); ++turns) loop.turn();
    }
    void checkList() {
        for (const auto& project : open()) {
            const auto listed = addIn().projects.FindQLProject(project);
            ASSERT_TRUE(listed) << project->Name();
            EXPECT_EQ(listed->VBProject(), project);
            EXPECT_EQ(addIn().projects.GetQLProject(project), listed); // by its name
        }
        EXPECT_FALSE(closed_ && addIn().projects.FindQLProject(closed_));
    }
    void checkSinks() {
        auto& connect = addIn().connect;
        EXPECT_EQ(connect.ControlsEventsHandler.source(), designer_);
        const auto active = ide->ActiveVBProject();
        if (!active) return;
        EXPECT_EQ(connect.FileControlHandler.source(), ide->Events()->FileControlEvents(active));
        EXPECT_EQ(addIn().projects.gCurrentProject, active);
        if (!addIn().projects.FindQLProject(active)->IsQuinloftProject()) return;
        EXPECT_EQ(connect.CompsEventsHandler.source(), ide->Events()->VBComponentsEvents(active));
        EXPECT_EQ(connect.RefEventsHandler.source(), ide->Events()->ReferencesEvents(active));
    }
    void checkFlags() {
        EXPECT_FALSE(addIn().connect.TemplateReloadPending);
        EXPECT_FALSE(addIn().connect.ComponentAddGuard);
        EXPECT_FALSE(addIn().projects.gOpeningProject);
        EXPECT_FALSE(loop.hasTimers());
        EXPECT_EQ(addIn().errors.reports(), 0) << testing::PrintToString(trace.effects);
        EXPECT_TRUE(failures.empty()) << failures.front();
    }

    void run() {
        std::vector<Project> unsaved;
        for (const auto& project : open())
            if (isUnsaved(project)) unsaved.push_back(project);
        trace.effects.clear();
        registry.requested.clear();
        const int before = questions();
        answerBoxes();
        nested_ = chance(10);
        if (nested_) loop.Post([this] { (void)basic::attempt([this] { step(); }); });
        (void)basic::attempt([this] { step(); }); // what a nested step closed raises errors
        turnUntilEmpty();
        leaving_.clear();
        if (nested_) designer_ = addIn().connect.ControlsEventsHandler.source();
        for (const auto& project : unsaved)
            EXPECT_TRUE(isOpen(project) || questions() > before) << "unsaved work has gone";
        checkList();
        checkSinks();
        checkFlags();
    }

    std::mt19937 random_;
    int questions_ = 0, made_ = 0;
    /// A second step runs while the first one's events are delivered.
    bool nested_ = false;
    Project closed_;
    basic::Ref<vbide::VBControlsEvents> designer_;
    std::map<std::shared_ptr<vbide::VBProject>, std::vector<fernwick::Subscription>> followed_;
    /// Those of projects that this step removed.
    std::vector<std::vector<fernwick::Subscription>> leaving_;
    std::vector<fernwick::Subscription> kept_;
};

TEST_P(RandomProjects, KeepTheAddInInStep) {
    for (int step = 1; step <= kSteps && !HasFailure(); ++step) {
        SCOPED_TRACE("seed " + std::to_string(GetParam()) + " step " + std::to_string(step));
        run();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomProjects, testing::Range(1u, 21u));

} // namespace
