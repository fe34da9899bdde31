#pragma once
// Programs and documents that are started and left alone.
#include "Add-in/platform/files.h"
#include "Add-in/platform/shell.h"
#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace host {

/// Documents open with xdg-open. Without a desktop, or without xdg-open, `tell` gets the document's path or address.
class Shell : public fernwick::Shell {
public:
    using Tell = std::function<void(const std::string& document)>;

    Shell(const fernwick::FileSystemObject& files, Tell tell) : files_(files), tell_(std::move(tell)) {}
    ~Shell() override { forgetEnded(); }

    /// "Hh.exe " with the path of a compiled help file opens the HTML page of that name beside it; with
    /// "ms-its:FILE::/PAGE" the page of that name beside the file; with "-mapid NUMBER FILE" the page NUMBER.html in the
    /// folder of the file's name, or the first page where the number has none. A program whose name ends in ".exe" may
    /// be installed without it.
    void Start(const std::string& commandLine) override;
    /// A compiled help file opens as with "Hh.exe ". Error 53 for a path where nothing is.
    void Open(const std::string& document) override;

private:
    void openHelp(std::string arguments);
    void show(const std::string& document);
    bool start(const std::string& commandLine);
    void forgetEnded();

    const fernwick::FileSystemObject& files_;
    Tell tell_;
    std::vector<pid_t> started_;
};

} // namespace host
