#pragma once
// The result of a verb that gives messages, and its three forms of output.
#include "Apps/fernwick/command_line_user.h"
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

struct Report {
    std::string verb;
    std::string project;
    std::string device;
    /// "" where none was made.
    std::string image;
    std::string statusText;
    std::vector<Message> messages;
    std::vector<ShownBox> boxes;
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

} // namespace cli
