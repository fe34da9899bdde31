#pragma once
// The dialogs "References" and "Components" of a project.
#include "Apps/workbench/base/run.h"
#include "Apps/workbench/references/library_rows.h"
#include <QDialog>

class QLabel;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace workbench {

class LibrariesDialog final : public QDialog {
public:
    LibrariesDialog(basic::Ref<host::Project> project, LibraryKind kind, QWidget* parent);

    const std::vector<LibraryRow>& rows() const { return rows_; }
    /// Adds a library from a file, ticked; the file is read when the dialog is confirmed.
    void addFile(const QString& path);

private:
    void build();
    void listRows();
    void showDetails();
    void tick(QListWidgetItem* item);
    void move(int by);
    bool canMove(int row, int by) const;
    void browse();

    basic::Ref<host::Project> project_;
    const LibraryKind kind_;
    std::vector<LibraryRow> rows_;
    QListWidget* list_;
    QLabel *details_, *problem_;
    QPushButton *up_, *down_, *browse_;
    bool listing_ = false;
};

/// Shows the dialog and changes the project unless the user cancels.
void editLibraries(const vbide::Ref<vbide::VBProject>& project, LibraryKind kind, QWidget* parent, const Run& run);

} // namespace workbench
