#pragma once
// Opens the sample that a user picked from the samples menu.
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

    /// The sample takes the place of what is open, which is saved as its user wants. A sample that is open already
    /// stays, and so does a project whose saving fails or is cancelled.
    void open(const clsSampleMenuItem& sample);

private:
    bool isOpen(Procedure& here, const std::string& path);
    void closeActiveProject(Procedure& here);

    SampleServices services_;
};

} // namespace fernwick
