#pragma once
// Where text that was not saved is kept: a folder for each running program, locked as long as it runs.
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

namespace workbench {

/// Above the folders of all programs of this user: in $XDG_STATE_HOME, else in ~/.local/state.
QString journalBase();

class JournalFolder {
public:
    /// A new one that only this user may read. Error 75 where it can't be made.
    static std::shared_ptr<JournalFolder> create(const QString& base);
    /// The folders of programs that have ended and left something in them, the oldest first. While one is held nobody
    /// else gets it.
    static std::vector<std::shared_ptr<JournalFolder>> leftBehind(const QString& base);

    JournalFolder(const JournalFolder&) = delete;
    /// Lets go of the lock; an empty folder goes.
    ~JournalFolder();

    /// Its journals, the oldest first.
    QStringList journals() const;
    /// A name in it.
    QString operator/(const QString& name) const { return path_ + "/" + name; }

private:
    JournalFolder(QString path, int lock) : path_(std::move(path)), lock_(lock) {}
    /// Null when somebody else holds it.
    static std::shared_ptr<JournalFolder> locked(const QString& path);

    QString path_;
    int lock_;
};

} // namespace workbench
