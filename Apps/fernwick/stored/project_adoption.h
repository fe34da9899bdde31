#pragma once
// What makes a Visual Basic project a Fernwick project, and what its device lacks.
#include "Apps/fernwick/output/report.h"
#include "Apps/fernwick/run/session.h"

namespace cli {

/// A control of a form that the device does not have.
struct ForeignControl {
    std::string file, name, className;
};

struct Adoption {
    /// The project file before and after, as bytes.
    std::string before, after;
    /// The lines that are only in one of them.
    std::vector<std::string> added, replaced;
    std::vector<ForeignControl> controls;
    /// The names of references that the device lacks.
    std::vector<std::string> references;
    /// Components of kinds that devices do not have.
    std::vector<std::string> components;
    /// Findings of the validator in the forms, and errors of the parser in all sources.
    std::vector<Message> messages;
};

/// Changes the open project in memory and collects what the device lacks. The session must not store anything.
Adoption adoptProject(Session& session, const std::string& device);

} // namespace cli
