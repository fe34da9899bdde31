#pragma once
// A platform in memory, whose calls are recorded in one trace and may fail.
#include "Add-in/platform/controls.h"
#include "Add-in/platform/platform.h"
#include "Add-in/platform/windows/no_windows.h"
#include "recording_report.h"
#include "traced_files.h"
#include "traced_registry.h"
#include <deque>
#include <functional>
#include <map>

namespace test {

/// Shows nothing. Boxes are answered from a queue, forms by the test. As in a window system, a form is activated again
/// after each box over it.
class TracedUser : public fernwick::Interaction {
public:
    explicit TracedUser(Trace& trace) : trace_(trace) {}
    /// Answers to boxes with a question, in order.
    std::deque<int> answers;
    std::map<std::string, std::function<void(fernwick::Form&)>> whenShown;
    std::string chosen;
    /// Returns the file of the next open dialog.
    std::function<std::string()> choose = [this] { return chosen; };
    /// The last open and save dialogs as they were shown.
    fernwick::CommonDialog opened, saved;

    void showModal(fernwick::Form& form) override {
        trace_.effect(std::string("form ") + form.typeName());
        shown_.push_back(&form);
        struct Gone {
            std::vector<fernwick::Form*>& shown;
            ~Gone() { shown.pop_back(); }
        } gone{shown_};
        form.activate();
        if (const auto act = whenShown.find(form.typeName()); form.Visible() && act != whenShown.end())
            act->second(form);
        if (form.Visible()) form.Unload();
    }
    int MsgBox(const std::string& text, int buttons, const std::string& title) override {
        trace_.effect("box " + std::to_string(buttons) + " " + title + ": " + text);
        if (!shown_.empty()) shown_.back()->activate();
        if ((buttons & 7) == fernwick::vbOKOnly) return fernwick::vbOK;
        if (answers.empty()) return fernwick::vbCancel;
        const int answer = answers.front();
        answers.pop_front();
        return answer;
    }
    /// Whether the user cancels save dialogs.
    bool cancelsSaving = false;
    /// Files for save dialogs, in order; without one a dialog keeps its name.
    std::deque<std::string> savedAs;
    void ShowSave(fernwick::CommonDialog& dialog) override {
        trace_.effect("save dialog");
        saved = dialog;
        if (cancelsSaving) throw basic::RuntimeError(fernwick::kCancelWasSelected);
        if (savedAs.empty()) return;
        dialog.FileName = savedAs.front();
        savedAs.pop_front();
    }
    /// "" cancels.
    void ShowOpen(fernwick::CommonDialog& dialog) override {
        trace_.effect("open dialog");
        opened = dialog;
        if (const auto file = choose(); !file.empty()) dialog.FileName = file;
    }
    void MessageBeep(int type) override { trace_.effect("beep " + std::to_string(type)); }
    void SetCursor(fernwick::MousePointerShape shape) override { trace_.effect("cursor " + std::to_string(shape)); }
    void SetRedraw(bool redraw) override { trace_.effect(redraw ? "redraw on" : "redraw off"); }

private:
    Trace& trace_;
    std::vector<fernwick::Form*> shown_;
};

inline void press(fernwick::Form& form, const std::string& button) {
    dynamic_cast<fernwick::CommandButton&>(form.control(button)).press();
}

/// Run by hand: each DoEvents and each call of `turn` is one turn.
class ManualLoop : public fernwick::EventLoop {
public:
    explicit ManualLoop(Trace& trace) : trace_(trace) {}
    void Post(std::function<void()> event) override { queue_.push_back(std::move(event)); }
    void DoEvents() override {
        trace_.read();
        if (showsTurns) trace_.effects.push_back("DoEvents");
        turn();
    }
    fernwick::Subscription StartTimer(int interval, std::function<void()> tick) override {
        trace_.read();
        intervals.push_back(interval);
        return timers_.connect(std::move(tick));
    }
    void turn() {
        for (auto n = queue_.size(); n > 0 && !queue_.empty(); --n) {
            const auto event = std::move(queue_.front());
            queue_.pop_front();
            event();
        }
        if (timersAreDue) timers_.raise();
    }
    bool timersAreDue = true;
    /// Whether each DoEvents is an effect.
    bool showsTurns = false;
    /// In milliseconds, of each timer that was started.
    std::vector<int> intervals;
    bool hasTimers() const { return timers_.hasHandlers(); }

private:
    Trace& trace_;
    std::deque<std::function<void()>> queue_;
    fernwick::Event<> timers_;
};

/// Programs end at once with the exit code stored for their command line; those without one can't be started.
class TracedProcesses : public fernwick::Processes {
public:
    explicit TracedProcesses(Trace& trace) : trace_(trace) {}
    std::map<std::string, std::int32_t> codes;
    bool waitFails = false;

    bool FindsProgram(const std::string& commandLine, const std::string&) const override {
        return codes.contains(commandLine);
    }
    bool CreateProcess(const std::string& commandLine, const std::string& folder, int show,
                       std::uint32_t& process) override {
        trace_.effect("run " + commandLine + " in " + folder + " show " + std::to_string(show));
        const auto program = codes.find(commandLine);
        if (program == codes.end()) return false;
        code_ = program->second;
        process = 7;
        return true;
    }
    std::uint32_t WaitForSingleObject(std::uint32_t) override {
        trace_.read();
        return waitFails ? 0xFFFFFFFF : 0;
    }
    bool GetExitCodeProcess(std::uint32_t, std::int32_t& code) override {
        code = code_;
        return true;
    }
    void CloseHandle(std::uint32_t process) override { trace_.effect("close " + std::to_string(process)); }

private:
    Trace& trace_;
    std::int32_t code_ = 0;
};

class TracedClasses : public fernwick::Classes {
public:
    explicit TracedClasses(Trace& trace) : trace_(trace) {}

    std::shared_ptr<void> RegisterClass(const std::string& progId, Factory factory) override {
        factories_[progId] = std::move(factory);
        return std::shared_ptr<void>(
            this, [progId](void* self) { static_cast<TracedClasses*>(self)->factories_.erase(progId); });
    }
    basic::Ref<fernwick::Object> CreateObject(const std::string& progId) override {
        trace_.read();
        const auto factory = factories_.find(progId);
        if (factory == factories_.end()) throw basic::RuntimeError(basic::kCantCreateObject);
        return factory->second();
    }
    /// Makes the class unknown.
    void forget(const std::string& progId) { factories_.erase(progId); }
    /// Anything in braces is an identifier.
    bool CLSIDFromString(const std::string& text, std::string& clsid) const override {
        clsid = text;
        return text.starts_with('{');
    }
    std::string ProgIDFromCLSID(const std::string& clsid) const override {
        const auto known = progIds.find(clsid);
        return known == progIds.end() ? "" : known->second;
    }
    basic::Ref<fernwick::TypeLibInfo> TypeLibInfoFromFile(const std::string& path) const override {
        trace_.read();
        const auto library = libraries.find(path);
        return library == libraries.end() ? nullptr : basic::make<fernwick::TypeLibInfo>(library->second);
    }

    /// ProgIDs by class identifier.
    std::map<std::string, std::string> progIds;
    /// Type libraries by path.
    std::map<std::string, fernwick::TypeLibInfo> libraries;

private:
    Trace& trace_;
    std::map<std::string, Factory> factories_;
};

class TracedEnvironment : public fernwick::Environment {
public:
    explicit TracedEnvironment(Trace& trace) : trace_(trace) {}
    std::map<std::string, std::string> values;
    std::string GetEnvironmentVariable(const std::string& name) const override {
        const auto value = values.find(name);
        return value == values.end() ? "" : value->second;
    }
    void SetEnvironmentVariable(const std::string& name, const std::string& value) override {
        trace_.effect("environment " + name);
        values[name] = value;
    }

private:
    Trace& trace_;
};

/// Contains a text. Saving and restoring it is recorded; pictures are not.
class TextClipboard : public fernwick::Clipboard {
public:
    explicit TextClipboard(Trace& trace) : trace_(trace) {}
    std::vector<std::string> Formats() const override { return {fernwick::kTextFormat}; }
    std::string GetData(const std::string&) const override {
        trace_.effect("backup clipboard");
        return "text";
    }
    void SetData(const std::string& format, const std::string&) override {
        if (format == fernwick::kTextFormat) trace_.effect("restore clipboard");
    }
    void Clear() override {}

private:
    Trace& trace_;
};
/// Starts nothing.
struct NoShell : fernwick::Shell {
    std::vector<std::string> started;
    int Start(const std::string& commandLine) override {
        started.push_back(commandLine);
        return 1;
    }
    void Open(const std::string&) override {}
};
struct FixedScreen : fernwick::Screen {
    float x = 15, y = 15;
    float TwipsPerPixelX() const override { return x; }
    float TwipsPerPixelY() const override { return y; }
    fernwick::Color GetSysColor(fernwick::SysColorIndex) const override { return fernwick::RGB(212, 208, 200); }
    bool FontFamilyExists(const std::string&) const override { return true; }
};
struct NoResources : fernwick::Resources {
    std::string LoadBitmap(int) const override { throw basic::RuntimeError(basic::kFileNotFound); }
};
struct FixedClock : fernwick::Clock {
    std::int64_t now = 42;
    std::int64_t Now() const override { return now; }
    std::int64_t Monotonic() const override { return now; }
};

struct TracedPlatform {
    TracedPlatform() {
        platform.app.Path = "/addin";
        platform.app.SupportWebAddress = "support.example";
        registry.set(fernwick::HKEY_LOCAL_MACHINE, "Software\\Quinloft", "RootDir", "/install");
        files.files["/vb/Template/Projects/Standard.vbp"] = {};
        files.files["/install/VB Toolkit/Template/Projects/Fernwick Project.vbp"] = {};
    }

    Trace trace;
    RecordingReport errors;
    TracedUser user{trace};
    ManualLoop loop{trace};
    MemoryRegistry registry;
    TracedFiles files{trace};
    TracedProcesses processes{trace};
    TracedClasses classes{trace};
    TracedEnvironment environment{trace};
    TextClipboard clipboard{trace};
    NoShell shell;
    FixedScreen screen;
    fernwick::NoWindows windows;
    FixedClock clock;
    NoResources resources;
    fernwick::Platform platform{user,      loop,  registry, files,   processes, classes,   environment,
                                clipboard, shell, screen,   windows, clock,     resources, {}};
};

} // namespace test
