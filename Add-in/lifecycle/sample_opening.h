#pragma once
// Opens the sample that the user chose from the samples menu.
#include "Add-in/commands/command_table.h"
#include "Add-in/project/modSaveProject.h"

namespace fernwick {

/// The dependencies of the opening of samples.
struct SampleServices {
    ErrorReport& errors;
    Interaction& user;
    EventLoop& loop;
    const FileSystemObject& files;
    const App& app;
    AddIn& addIn;
    modSaveProject& save;
    CommandItems& items;
};

class SampleOpening {
public:
    explicit SampleOpening(const SampleServices& services) : services_(services) {}

    /// Replaces the open projects by the sample; the user decides whether to save. A sample that is already open stays
    /// open, as does a project whose saving fails or is cancelled.
    void open(const clsSampleMenuItem& sample);

private:
    bool isOpen(Procedure& here, const std::string& path);
    void closeActiveProject(Procedure& here);

    SampleServices services_;
};

} // namespace fernwick
