#pragma once
// Programs and documents that are started without waiting for them.
#include "Add-in/platform/files.h"
#include "Add-in/platform/shell.h"
#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace host {

/// Opens documents with xdg-open. Passes the document's path or address to `report` if there is no desktop or xdg-open,
/// or once checkOpened() finds that xdg-open has failed, as it does without a browser.
class Shell : public fernwick::Shell {
public:
    using Report = std::function<void(const std::string& document)>;
    /// Called after a program was started for a document. The caller then calls checkOpened() from time to time.
    using Started = std::function<void()>;

    Shell(
        const fernwick::FileSystemObject& files, Report report, Started started = [] {})
        : files_(files), report_(std::move(report)), started_(std::move(started)) {}
    ~Shell() override;

    /// "Hh.exe " followed by a compiled help file opens the HTML page of the same name next to it; "ms-its:FILE::/PAGE"
    /// opens PAGE next to the file; "-mapid NUMBER FILE" opens NUMBER.html in the folder named like the file, or the
    /// first page if there is no such page. A program whose name ends in ".exe" may be installed without it.
    int Start(const std::string& commandLine) override;
    /// Compiled help files are opened as with "Hh.exe ". Error 53 for a path that does not exist.
    void Open(const std::string& document) override;
    /// Reports the documents whose program has failed since. Returns whether any program is still running.
    bool checkOpened();

private:
    struct Child {
        pid_t id;
        std::string document; ///< "" for a program that was not started for one
    };

    void openHelp(std::string arguments);
    void show(const std::string& document);
    /// The documents of programs that have failed.
    std::vector<std::string> reapEnded();

    const fernwick::FileSystemObject& files_;
    Report report_;
    Started started_;
    std::vector<Child> children_;
};

} // namespace host
