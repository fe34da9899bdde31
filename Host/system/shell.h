#pragma once
// Programs and documents that are started without waiting for them.
#include "Add-in/platform/files.h"
#include "Add-in/platform/shell.h"
#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace host {

/// Opens documents with xdg-open. Without a desktop or xdg-open, passes the document's path or address to `report`.
class Shell : public fernwick::Shell {
public:
    using Report = std::function<void(const std::string& document)>;

    Shell(const fernwick::FileSystemObject& files, Report report) : files_(files), report_(std::move(report)) {}
    ~Shell() override { reapEnded(); }

    /// "Hh.exe " followed by a compiled help file opens the HTML page of the same name next to it; "ms-its:FILE::/PAGE"
    /// opens PAGE next to the file; "-mapid NUMBER FILE" opens NUMBER.html in the folder named like the file, or the
    /// first page if there is no such page. A program whose name ends in ".exe" may be installed without it.
    void Start(const std::string& commandLine) override;
    /// Compiled help files are opened as with "Hh.exe ". Error 53 for a path that does not exist.
    void Open(const std::string& document) override;

private:
    void openHelp(std::string arguments);
    void show(const std::string& document);
    bool start(const std::string& commandLine);
    void reapEnded();

    const fernwick::FileSystemObject& files_;
    Report report_;
    std::vector<pid_t> started_;
};

} // namespace host
