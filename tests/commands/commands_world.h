#pragma once
// The menu and the toolbars over bars in memory.
#include "tests/support/add_in_world.h"

namespace test {

/// A clipboard that keeps the order of its formats. Another program may block it.
class TracedClipboard : public fernwick::Clipboard {
public:
    explicit TracedClipboard(Trace& trace) : trace_(trace) {}
    std::vector<std::pair<std::string, std::string>> contents;
    bool isHeld = false;

    std::vector<std::string> Formats() const override {
        open();
        std::vector<std::string> formats;
        for (const auto& [format, data] : contents) formats.push_back(format);
        return formats;
    }
    std::string GetData(const std::string& format) const override {
        open();
        for (const auto& [name, data] : contents)
            if (name == format) return data;
        return "";
    }
    void SetData(const std::string& format, const std::string& data) override {
        open();
        if (isRecorded) trace_.effects.push_back("clipboard " + format);
        contents.emplace_back(format, data);
    }
    void Clear() override {
        open();
        if (isRecorded) trace_.effects.push_back("clipboard cleared");
        contents.clear();
    }
    /// Whether changes are recorded: each face takes three lines.
    bool isRecorded = false;

private:
    void open() const {
        trace_.read();
        if (isHeld) throw basic::RuntimeError(basic::kCantOpenClipboard);
    }
    Trace& trace_;
};

/// Pictures of one pixel in the mask colour, followed by a byte with their number.
struct OnePixel : fernwick::Resources {
    mutable std::vector<int> loaded;
    std::string LoadBitmap(int id) const override {
        loaded.push_back(id);
        std::string bmp(58, '\0');
        bmp.replace(0, 2, "BM");
        bmp[10] = 54;
        bmp[18] = bmp[22] = 1;
        bmp[28] = 24;
        bmp[54] = bmp[55] = bmp[56] = char(192);
        bmp[57] = char(id);
        return bmp;
    }
};

/// A platform with the test's own clipboard and pictures.
struct CommandsPlatform : TracedPlatform {
    TracedClipboard pasteboard{trace};
    OnePixel pictures;
    fernwick::Platform platform{
        user,       loop,  registry, files,   processes, classes,  environment,
        pasteboard, shell, screen,   windows, clock,     pictures, TracedPlatform::platform.app};
};

/// The trace contains all effects on the bars.
struct CommandsWorld : AddInWorld<CommandsPlatform> {
    CommandsWorld() { vbe->bars = bars = hostBars(trace); }
    ~CommandsWorld() { EXPECT_EQ(registry.openKeys(), 0U) << "a registry key stayed open"; }

    Ref<TracedBar> menuBar() const { return bars->menuBar; }
    /// Returns the add-in's menu, or one of its popups.
    Ref<TracedBar> shownMenu(const std::string& popup = "") const {
        const Ref<TracedBar> main = menuBar()->at("Fernwick")->popup;
        return popup.empty() ? main : Ref<TracedBar>(main->at(popup)->popup);
    }
    static std::vector<std::string> captions(const Ref<TracedBar>& bar) {
        std::vector<std::string> all;
        for (const auto& item : bar->items) all.push_back(item->caption);
        return all;
    }
    void addSample(const std::string& key, const std::string& name, const std::string& data) {
        registry.set(fernwick::HKEY_LOCAL_MACHINE, "SOFTWARE\\Quinloft\\VB Toolkit\\Samples" + key, name, data);
    }
    /// Returns the effects of `act`.
    std::vector<std::string> effectsOf(const std::function<void()>& act) {
        trace.effects.clear();
        act();
        return trace.effects;
    }
    bool build() { return menu.SetUpQuinloftMenu(vbe); }

    fernwick::modClipboardManagement& clips = Modules::clipboard;
};

} // namespace test
