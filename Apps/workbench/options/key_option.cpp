#include "Apps/workbench/options/key_option.h"
#include <QSettings>

namespace workbench {

QKeySequence KeyOption::stored() const {
    const QSettings settings;
    if (!settings.contains(setting)) return usual;
    const auto text = settings.value(setting).toString();
    const auto key = QKeySequence::fromString(text, QKeySequence::PortableText);
    return text.isEmpty() || canBeKey(key) ? key : usual;
}

void KeyOption::store(const QKeySequence& key) const {
    QSettings settings;
    key == usual ? settings.remove(setting) : settings.setValue(setting, key.toString(QKeySequence::PortableText));
}

QList<QKeySequence> KeyOption::keysWith(const QKeySequence& chosen) const {
    QList<QKeySequence> keys{chosen};
    if (chosen == usual) keys << otherUsual;
    keys.removeAll(QKeySequence());
    return keys;
}

bool canBeKey(const QKeySequence& key) {
    if (key.count() != 1) return false;
    const auto code = key[0].key();
    const auto modifiers = key[0].keyboardModifiers();
    if (code == Qt::Key_unknown || code == Qt::Key(0)) return false;
    const bool isFunction = code >= Qt::Key_F1 && code <= Qt::Key_F35;
    return isFunction || (modifiers & (Qt::ControlModifier | Qt::MetaModifier)) != 0;
}

QStringList commandsWith(const QKeySequence& key, const std::vector<KeyOption>& options,
                         const std::vector<QKeySequence>& chosen) {
    QStringList commands;
    for (std::size_t i = 0; i < options.size(); ++i)
        if (options[i].keysWith(chosen[i]).contains(key)) commands << options[i].command;
    return commands;
}

} // namespace workbench
