#pragma once
// The result of a command that reports messages, and its output formats.
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/output/console.h"
#include "Apps/fernwick/output/shown_box.h"
#include <optional>
#include <string>
#include <vector>

namespace cli {

struct Message {
    bool isError = true;
    /// False for a stored message that is neither an error nor a warning.
    bool isKnown = true;
    int number = 0;
    std::string text;
    /// Full path; "" for a message without a file.
    std::string file;
    /// Physical line and column in the file, from 1; 0 for none.
    int line = 0, column = 0;
    /// The column after the word that the message is about; 0 if unknown.
    int endColumn = 0;
    /// Name of the component and line in its code window; "" and 0 for none.
    std::string component;
    int codeLine = 0;
};

/// The outcome for one device.
struct DeviceOutcome {
    std::string device;
    bool good = false;
    /// What was installed where, for display, or the package's path.
    std::vector<std::string> places;
    std::string statusText;
    bool statusIsSuccess = false;
    std::vector<Message> messages;
    std::vector<ShownBox> boxes;
    /// Why it failed, in one line; "" on success.
    std::string reason;
};

/// What a build would read, run and use.
struct BuildPlan {
    std::vector<std::string> sources, libraries, steps;
};

struct Report {
    std::string verb;
    std::string project;
    std::string device;
    /// "" if no image was made.
    std::string image;
    std::string statusText;
    std::vector<Message> messages;
    std::vector<ShownBox> boxes;
    /// Only of commands that serve devices.
    std::vector<DeviceOutcome> devices;
    /// The files that the image depends on.
    std::vector<std::string> inputs;
    /// Only of a dry run, whose image is the one that a build would write.
    std::optional<BuildPlan> plan;
    /// The members of a group, whose messages are also in `messages`.
    std::vector<Report> projects;
    int exitStatus = 0;
    /// What prevented the command; "" for nothing.
    std::string failure;
};

/// "error", "warning" or "unknown".
std::string_view severityOf(const Message& message);
/// Returns `file:line: error 1042: text`, with the project for a message without a file.
std::string textOf(const Message& message, const std::string& project);
/// Schema: installation/schemas/report-1.json. Ends with a newline.
std::string jsonOf(const Report& report);
/// SARIF 2.1.0, with the paths below `sourceRoot` relative to it; "" for the current folder. Ends with a newline.
std::string sarifOf(const Report& report, const std::string& sourceRoot);

/// Writes the messages to standard error, one line each.
void printMessages(const std::vector<Message>& messages, const std::string& project, Console& console);
/// Writes JSON or SARIF if requested.
void printDocument(const Report& report, const Options& options, Console& console);
/// Prints the failure, if any, and writes JSON or SARIF if requested. Returns false if the result is to be written as
/// text.
bool printFormatted(const Report& report, const Options& options, Console& console);
/// Writes the result in the requested format. As text, messages and failures go to standard error.
void printReport(const Report& report, const Options& options, Console& console);

} // namespace cli
