#pragma once
// The folders of journals: one for each running program, locked while it runs.
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

namespace workbench {

/// The parent folder for all programs of this user: in $XDG_STATE_HOME, else in ~/.local/state.
QString journalBase();

class JournalFolder {
public:
    /// Creates a folder that only this user can read. Error 75 if it cannot be created.
    static std::shared_ptr<JournalFolder> create(const QString& base);
    /// Returns the folders of programs that ended and left journals, the oldest first. They stay locked as long as they
    /// are held.
    static std::vector<std::shared_ptr<JournalFolder>> leftBehind(const QString& base);

    JournalFolder(const JournalFolder&) = delete;
    /// Releases the lock and removes the folder if it is empty.
    ~JournalFolder();

    /// Its journals, the oldest first.
    QStringList journals() const;
    /// The path of a name in it.
    QString operator/(const QString& name) const { return path_ + "/" + name; }

private:
    JournalFolder(QString path, int lock) : path_(std::move(path)), lock_(lock) {}
    /// Null if another program holds it.
    static std::shared_ptr<JournalFolder> locked(const QString& path);

    QString path_;
    int lock_;
};

} // namespace workbench
