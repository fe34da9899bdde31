#pragma once
// The contents of a project for `info`.
#include "Apps/fernwick/output/json_output.h"
#include "Apps/fernwick/run/session.h"
#include <string>
#include <vector>

namespace cli {

struct ComponentInfo {
    std::string name, kind, file;
    int lines = 0; ///< of the code window
};

struct ReferenceInfo {
    std::string name, guid, version, path;
    bool builtIn = false, broken = false;
};

struct ProjectInfo {
    std::string name, file, type, title, version, startup;
    bool isFernwick = false;
    std::string projectVersion, device;
    std::vector<ComponentInfo> components;
    std::vector<ReferenceInfo> references;
    std::vector<std::string> preCompileSteps, postCompileSteps;
    std::vector<host::LoadProblem> problems;
};

/// Requires a session with an open project after takeUp().
ProjectInfo infoOf(Session& session);

std::size_t codeLinesOf(const ProjectInfo& info);
std::size_t brokenReferencesOf(const ProjectInfo& info);

Json jsonOfInfo(const ProjectInfo& info);
std::string textOfInfo(const ProjectInfo& info);

} // namespace cli
