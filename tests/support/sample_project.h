#pragma once
// Projects for tests, in the IDE's format.
#include "tests/support/temp_folder.h"
#include <string>
#include <utility>
#include <vector>

namespace test {

/// Texts of source files, with CR LF line ends.
inline std::string formText(const std::string& name, const std::string& code = {}) {
    return "VERSION 5.00\r\nBegin VB.Form " + name + " \r\n   Caption         =   \"" + name +
           "\"\r\n   ClientHeight    =   2400\r\n   ClientLeft      =   60\r\n   ClientTop       =   345\r\n"
           "   ClientWidth     =   2400\r\n   ScaleHeight     =   2400\r\n   ScaleWidth      =   2400\r\nEnd\r\n"
           "Attribute VB_Name = \"" +
           name +
           "\"\r\nAttribute VB_GlobalNameSpace = False\r\nAttribute VB_Creatable = False\r\n"
           "Attribute VB_PredeclaredId = True\r\nAttribute VB_Exposed = False\r\n" +
           code;
}
inline std::string moduleText(const std::string& name, const std::string& code = {}) {
    return "Attribute VB_Name = \"" + name + "\"\r\n" + code;
}
inline std::string classText(const std::string& name, const std::string& code = {}) {
    return "VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1  'True\r\nEND\r\nAttribute VB_Name = \"" + name +
           "\"\r\nAttribute VB_GlobalNameSpace = False\r\nAttribute VB_Creatable = True\r\n"
           "Attribute VB_PredeclaredId = False\r\nAttribute VB_Exposed = False\r\n" +
           code;
}

/// A project that is built step by step and then written to a folder.
class SampleProject {
public:
    explicit SampleProject(std::string name = "Hello") : name_(std::move(name)) {}

    /// Adds a member line and its file; `code` is the visible part of the code.
    SampleProject& form(const std::string& name, const std::string& code = {}) {
        return member("Form=" + name + ".frm", name + ".frm", formText(name, code));
    }
    SampleProject& module(const std::string& name, const std::string& code = {}) {
        return member("Module=" + name + "; " + name + ".bas", name + ".bas", moduleText(name, code));
    }
    SampleProject& classModule(const std::string& name, const std::string& code = {}) {
        return member("Class=" + name + "; " + name + ".cls", name + ".cls", classText(name, code));
    }
    /// Adds a member line, and its file if the name is not empty.
    SampleProject& member(const std::string& line, const std::string& file = {}, const std::string& text = {}) {
        members_ += line + "\r\n";
        if (!file.empty()) files_.emplace_back(file, text);
        return *this;
    }
    SampleProject& startup(const std::string& name) {
        startup_ = name;
        return *this;
    }
    /// Adds lines of sections after the settings.
    SampleProject& sections(const std::string& lines) {
        sections_ += lines;
        return *this;
    }
    /// Adds the values that make it a Fernwick project, with a device unless it is empty.
    SampleProject& handheld(const std::string& device = {}) {
        sections("\r\n[Quinloft Global]\r\nIsQuinloftProject=True\r\nProjectVersion=3.5\r\n");
        return device.empty() ? *this : sections("TargetDevice=" + device + "\r\n");
    }

    std::string text() const {
        return "Type=Exe\r\n" + members_ + "Startup=\"" + startup_ + "\"\r\nCommand32=\"\"\r\nName=\"" + name_ +
               "\"\r\nMajorVer=1\r\nMinorVer=0\r\nRevisionVer=0\r\nAutoIncrementVer=0\r\n" + sections_;
    }
    /// Writes the files and returns the project's path.
    std::string writeTo(const TempFolder& folder, const std::string& subfolder = {}) const {
        const auto base = subfolder.empty() ? std::string() : subfolder + "/";
        for (const auto& [file, text] : files_) folder.write(base + file, text);
        return folder.write(base + name_ + ".vbp", text());
    }

private:
    std::string name_, members_, startup_ = "(None)", sections_;
    std::vector<std::pair<std::string, std::string>> files_;
};

} // namespace test
