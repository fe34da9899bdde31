#pragma once
#include <QKeySequence>
#include <QList>
#include <QString>
#include <QStringList>
#include <vector>

namespace workbench {

/// The key of a command in the user's settings.
struct KeyOption {
    QString setting;
    QString menu, command; ///< for the user
    QKeySequence usual;
    /// A second key, which the command has as long as its key is the usual one.
    QKeySequence otherUsual = {};

    /// Empty if the user removed the key.
    QKeySequence stored() const;
    void store(const QKeySequence& key) const;
    /// The keys that the command has if the user chose this one.
    QList<QKeySequence> keysWith(const QKeySequence& chosen) const;
};

/// Whether a command can have the key: it has Ctrl or Meta, or is a function key. All others type a character, edit, or
/// open a menu.
bool canBeKey(const QKeySequence& key);

/// The texts of the commands that have a key if the user chose these keys.
QStringList commandsWith(const QKeySequence& key, const std::vector<KeyOption>& options,
                         const std::vector<QKeySequence>& chosen);

} // namespace workbench
