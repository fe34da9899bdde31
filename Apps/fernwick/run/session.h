#pragma once
// One open project at the command line: the host, the add-in, and how both end.
#include "Add-in/core/connect/Modules.h"
#include "Apps/common/host_options.h"
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/run/machine.h"
#include "Apps/fernwick/run/steps_trust.h"
#include "Host/model/host.h"
#include <memory>

namespace cli {

/// The exit status for a project that can't be opened, by the number of the error.
int statusOfOpening(int number);
/// The description of an error with the file in front, where it isn't there already.
std::string withFile(const std::string& path, const std::string& description);

class Session {
public:
    Session(const Options& options, Console& console);
    ~Session();
    Session(const Session&) = delete;

    /// Opens the project in the host. Refusals: it is not there or is no project. Problems with its files are told.
    void open(const std::string& path);
    /// Refusal 1 for a project that is not a Fernwick project, or one of an older version.
    void requireFernwickProject();
    /// Refusal 1 for a project that lists a source file which is missing, unreadable or has another's name: what would
    /// come of the rest is not the project.
    void requireAllMembers();
    /// Lists the project with the add-in without connecting it: enough to read and write settings.
    void takeUp();
    /// Takes the project off the add-in's list again: connecting lists it anew.
    void forget();
    /// Connects the add-in to the host, which takes up the project and gives it a device where it has none.
    void connect();
    /// As at a user's closing: the project's files are saved, with the window state where the add-in is connected.
    /// False when the project's file could not be written.
    bool closeAndSave();
    /// Closes without saving anything.
    void closeUnsaved();

    const basic::Ref<vbide::VBProject>& project() const { return project_; }
    const basic::Ref<fernwick::clsQLProject>& settings() const { return settings_; }
    fernwick::Modules& addIn() { return *modules_; }
    host::Host& host() { return *host_; }
    Machine& machine() { return machine_; }
    CommandLineUser& user() { return user_; }
    StepsTrust& trust() { return trust_; }
    const std::string& path() const { return path_; }
    /// Whether the host still has the project: one that nothing here can serve is removed from it.
    bool isOpen() const;

private:
    void close();
    void tellProblems();
    int deviceRow(const std::string& key);
    bool hasUnsavedComponents() const;

    const Options& options_;
    Console& console_;
    CommandLineUser user_;
    StepsTrust trust_;
    Machine machine_;
    apps::InstalledControls controls_;
    std::shared_ptr<fernwick::Modules> modules_;
    std::shared_ptr<host::Host> host_;
    std::string path_;
    basic::Ref<vbide::VBProject> project_;
    basic::Ref<fernwick::clsQLProject> settings_;
    bool connected_ = false;
};

} // namespace cli
