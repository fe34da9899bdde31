#pragma once
// The host and the add-in with one open project.
#include "Add-in/core/connect/connections.h"
#include "Apps/common/host_options.h"
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/options/refusal.h"
#include "Apps/fernwick/run/machine.h"
#include "Apps/fernwick/run/output_files.h"
#include "Apps/fernwick/run/project_lock.h"
#include "Apps/fernwick/run/steps_trust.h"
#include "Host/model/host.h"
#include <memory>

namespace cli {

class Session {
public:
    Session(const Options& options, Console& console);
    ~Session();
    Session(const Session&) = delete;

    /// Opens the project in the host and prints problems with its files. Refusal if it does not exist or is not a
    /// project.
    void open(const std::string& path);
    /// Connects the add-in and adds a new project from a template, which the add-in may replace by that of the device. There
    /// is no project afterwards if it got no device.
    void addFromTemplate(const std::string& path);
    /// Stores a device and its values in the add-in's active project.
    void assignDevice(const std::string& key);
    /// Waits until no other run writes this project or its output folder, before open(). Refusal 1 with --no-wait.
    void lock(const std::string& path);
    /// Refusal 3 for a read-only project file.
    void requireWritableProject();
    /// Refusal 3 if the results of a build cannot be stored, 1 if the stored form of messages cannot hold the paths of
    /// the project's files.
    void requireStorableResults();
    /// Refusal 1 if it is not a Fernwick project, or one of an older version.
    void requireFernwickProject();
    /// Refusal 1 if a source file is missing, unreadable or has the same name as another: without it the image would
    /// not be complete.
    void requireAllMembers();
    /// Adds the project to the add-in's list without connecting the add-in, which is enough for its settings.
    void takeUp();
    /// Removes the project from the add-in's list; connecting adds it again.
    void forget();
    /// Connects the add-in, which adds the project to its list and assigns a device if it has none.
    void connect();
    /// Saves the project's files, with the window state if the add-in is connected, and closes the project. Returns
    /// false if the project file could not be written.
    bool closeAndSave();
    /// Closes without saving anything.
    void closeUnsaved();

    const basic::Ref<vbide::VBProject>& project() const { return project_; }
    const basic::Ref<fernwick::clsQLProject>& settings() const { return settings_; }
    fernwick::Modules& addIn() { return connections_.current(); }
    host::Host& host() { return *host_; }
    Machine& machine() { return machine_; }
    CommandLineUser& user() { return user_; }
    Console& console() { return console_; }
    StepsTrust& trust() { return trust_; }
    const std::string& path() const { return path_; }
    /// Whether the project's file receives settings and results.
    bool stores() const { return !options_.noStore && options_.output.empty(); }
    /// Whether the host still has the project; the add-in removes one without a usable device.
    bool isOpen() const;

private:
    void connectAddIn();
    void close();
    void printProblems();
    void answerDeviceList(UserContext& context);
    bool hasUnsavedComponents() const;

    const Options& options_;
    Console& console_;
    CommandLineUser user_;
    StepsTrust trust_;
    OutputFiles* files_; ///< the machine's
    Machine machine_;
    apps::InstalledControls controls_;
    fernwick::Connections connections_;
    std::shared_ptr<host::Host> host_;
    std::string path_;
    basic::Ref<vbide::VBProject> project_;
    basic::Ref<fernwick::clsQLProject> settings_;
    std::optional<ProjectLock> lock_;
    bool connected_ = false;
};

} // namespace cli
