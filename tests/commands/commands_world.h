#pragma once
// The menu and the toolbars over bars in memory.
#include "Add-in/commands/modClipboardManagement.h"
#include "Add-in/commands/modMenuManagement.h"
#include "Add-in/commands/modToolbarManagement.h"
#include "tests/support/fake_targets.h"
#include "tests/support/traced_bars.h"
#include "tests/support/traced_host.h"
#include "tests/support/traced_platform.h"

namespace test {

/// A clipboard whose formats keep their order. Another program may have it open.
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
        if (told) trace_.effects.push_back("clipboard " + format);
        contents.emplace_back(format, data);
    }
    void Clear() override {
        open();
        if (told) trace_.effects.push_back("clipboard cleared");
        contents.clear();
    }
    /// Whether the trace tells of it: a face takes three lines.
    bool told = false;

private:
    void open() const {
        trace_.read();
        if (isHeld) throw basic::RuntimeError(basic::kCantOpenClipboard);
    }
    Trace& trace_;
};

/// Pictures of one pixel in the mask colour, which tell their number in the byte behind it.
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

struct CommandsWorld : TracedPlatform {
    CommandsWorld() {
        addIn.gVBInstance = vbe;
        vbe->bars = bars;
        const auto menuBar = bars->stand("Menu Bar");
        bars->menuBar = menuBar;
        menuBar->stand(30002, "&File");
        menuBar->stand(30004, "&View");
        menuBar->stand(30038, "&Add-Ins");
        const auto file = bars->stand("File");
        for (const auto* caption : {"New", "Open", "Save", "Remove"}) file->stand(100, caption);
    }
    ~CommandsWorld() { EXPECT_EQ(registry.openKeys(), 0U) << "a registry key stayed open"; }

    Ref<TracedBar> menuBar() const { return bars->menuBar; }
    /// The add-in's menu, or one of its popups.
    Ref<TracedBar> menu(const std::string& popup = "") const {
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
    /// What `act` does, in the trace.
    std::vector<std::string> effectsOf(const std::function<void()>& act) {
        trace.effects.clear();
        act();
        return trace.effects;
    }
    bool build() { return menus.SetUpQuinloftMenu(vbe); }

    TracedClipboard pasteboard{trace};
    OnePixel pictures;
    fernwick::Platform world{user,       loop,  registry, files, processes, classes,     environment,
                             pasteboard, shell, screen,   clock, pictures,  platform.app};
    Ref<TracedBars> bars = basic::make<TracedBars>(trace);
    Ref<TracedVbe> vbe = basic::make<TracedVbe>(trace);
    FakeTargets targets{classes};
    fernwick::modRegistry2 registry2{registry};
    fernwick::modAddinPrefsManagement prefs{registry2, errors};
    fernwick::AddIn addIn{registry2, errors, environment};
    fernwick::modDeviceManagement devices{classes, errors};
    fernwick::CommandItems items;
    fernwick::modImageManagement images{world};
    fernwick::modMenuManagement menus{{user, errors, addIn, registry2, devices, images, items}};
    fernwick::modToolbarManagement toolbars{{errors, addIn, prefs, images, items}};
    fernwick::modClipboardManagement clips{pasteboard, errors};
};

} // namespace test
