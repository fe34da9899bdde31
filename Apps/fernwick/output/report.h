#pragma once
// The result of a verb that gives messages, and its three forms of output.
#include "Apps/fernwick/options/options.h"
#include "Apps/fernwick/output/console.h"
#include "Apps/fernwick/output/shown_box.h"
#include <string>
#include <vector>

namespace cli {

struct Message {
    bool isError = true;
    int number = 0;
    std::string text;
    /// Full path; "" for a message without a file.
    std::string file;
    /// Physical line and column in the file, from 1; 0 for none.
    int line = 0, column = 0;
    /// Name of the component, and the line of its code window; "" and 0 for none.
    std::string component;
    int codeLine = 0;
};

/// What came of serving one device.
struct DeviceOutcome {
    std::string device;
    bool good = false;
    /// What the run put where, in words for users; or the package's path. Empty when nothing was put.
    std::vector<std::string> places;
    std::string statusText;
    bool statusIsSuccess = false;
    std::vector<Message> messages;
    std::vector<ShownBox> boxes;
    /// Why it failed, in one line; "" for a good one.
    std::string reason;
};

struct Report {
    std::string verb;
    std::string project;
    std::string device;
    /// "" where none was made.
    std::string image;
    std::string statusText;
    std::vector<Message> messages;
    std::vector<ShownBox> boxes;
    /// Of the verbs that serve devices.
    std::vector<DeviceOutcome> devices;
    int exitStatus = 0;
    /// What kept the verb from its job; "" for nothing.
    std::string failure;
};

/// `file:line: error 1042: text`. A message without a file names the project.
std::string textOf(const Message& message, const std::string& project);
/// Schema: installation/schemas/report-1.json. Ends with a line end.
std::string jsonOf(const Report& report);
/// SARIF 2.1.0. Ends with a line end.
std::string sarifOf(const Report& report);

/// To standard error, a line each.
void printMessages(const std::vector<Message>& messages, const std::string& project, Console& console);
/// Tells a failure, and writes the result where a format was asked for. False where it is to be written as text.
bool printFormatted(const Report& report, const Options& options, Console& console);
/// Writes the result in the format asked for; as text the messages and failures go to standard error.
void printReport(const Report& report, const Options& options, Console& console);

} // namespace cli
