#pragma once
// A new project in a folder of its own.
#include "Apps/fernwick/run/session.h"

namespace cli {

/// Where a new project is stored: the folder, which has its name, and the project file in it.
struct NewProjectPlace {
    std::string name, folder, projectFile;
};

/// Refusal 2 if the last part of the path is not a name for a project, or if the project file exists.
NewProjectPlace newProjectPlace(const std::string& path);

/// Returns the template that is given by its name in the installation or by its path; "" is that of all Fernwick
/// projects. Refusal 2 for an unknown one.
std::string newProjectTemplate(Session& session, const std::string& given);

/// Names the session's project, which has no file, and saves it with its components. Returns the files. Refusals: a file
/// exists (2), a file cannot be written (1). Nothing remains of a project that was not saved completely.
std::vector<std::string> saveNewProject(Session& session, const NewProjectPlace& place);

} // namespace cli
