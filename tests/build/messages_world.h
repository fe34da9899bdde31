#pragma once
// A message store over a host in memory, with the real window document.
#include "tests/support/add_in_world.h"

namespace test {

constexpr char kMessagesSection[] = "Quinloft Project Compile Errors";

/// Records what is started. The program `missing` does not exist.
struct StartedPrograms : fernwick::Shell {
    explicit StartedPrograms(Trace& t) : trace(t) {}
    int Start(const std::string& commandLine) override {
        trace.effect("start " + commandLine);
        if (commandLine == missing) throw basic::RuntimeError(basic::kFileNotFound);
        return 1;
    }
    void Open(const std::string&) override {}
    std::string missing;

private:
    Trace& trace;
};

/// A clipboard with initial contents.
struct CopiedTexts : fernwick::Clipboard {
    explicit CopiedTexts(Trace& t) : trace(t) {}
    std::vector<std::string> Formats() const override { return {}; }
    std::string GetData(const std::string& format) const override {
        const auto held = texts.find(format);
        return held == texts.end() ? "" : held->second;
    }
    void SetData(const std::string& format, const std::string& data) override {
        trace.effect("copy " + format);
        texts[format] = data;
    }
    void Clear() override {
        trace.effect("clipboard cleared");
        texts.clear();
    }
    std::map<std::string, std::string> texts{{"image/bmp", "old"}};

private:
    Trace& trace;
};

/// The pictures of errors and warnings.
struct TwoPictures : fernwick::Resources {
    mutable int loads = 0;
    bool away = false;
    std::string LoadBitmap(int id) const override {
        ++loads;
        if (away || (id != 101 && id != 102)) throw basic::RuntimeError(basic::kFileNotFound);
        return "picture " + std::to_string(id);
    }
};

/// A font whose characters are all of one size.
struct FixedWidthFont : fernwick::DeviceContext {
    int characterWidth = 10, lineHeight = 16;
    mutable int measured = 0;
    fernwick::TextExtent GetTextExtentPoint32(const std::string& text) const noexcept override {
        ++measured;
        return {int(text.size()) * characterWidth, lineHeight};
    }
};

/// A platform whose shell, clipboard and pictures are the test's.
struct MessagesPlatform : TracedPlatform {
    StartedPrograms programs{trace};
    CopiedTexts copied{trace};
    TwoPictures pictures;
    fernwick::Platform platform{user,   loop,     registry, files,   processes, classes,  environment,
                                copied, programs, screen,   windows, clock,     pictures, TracedPlatform::platform.app};
};

struct MessagesWorld : AddInWorld<MessagesPlatform> {
    MessagesWorld() {
        vbe->projects->list.push_back(project);
        vbe->active = project;
    }
    void store(const std::string& key, const std::string& value) {
        project->properties[{kMessagesSection, key}] = value;
    }
    std::string stored(const std::string& key) const { return project->stored(key); }
    /// Rows as "title|line|number|message".
    std::vector<std::string> rows() const {
        std::vector<std::string> all;
        for (int row = 1; row < window->rowCount(); ++row) {
            const auto& cells = window->message(row).cells;
            all.push_back(cells[2] + "|" + cells[3] + "|" + cells[4] + "|" + cells[5]);
        }
        return all;
    }

    basic::Ref<TracedProject> project = basic::make<TracedProject>(trace, "Demo", "/p/Demo.vbp");
};

} // namespace test
