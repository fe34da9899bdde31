#include "Apps/workbench/window/command_keys.h"
#include "Apps/workbench/bars/bar_controls.h"
#include "Apps/workbench/base/text.h"
#include "Apps/workbench/window/command_icons.h"
#include "Apps/workbench/window/commands.h"

namespace workbench {

namespace {

/// A row of the tables of commands. Its option has no texts yet.
struct CommandKey {
    int id, menu;
    const char* text; ///< null for a command of the host
    KeyOption option;
};

QKeySequence sequenceOf(QKeyCombination key) { return key == QKeyCombination() ? QKeySequence() : QKeySequence(key); }

CommandKey keyOf(int id, int menu, const char* text, QKeyCombination key, QKeyCombination otherKey = {}) {
    return {id, menu, text, {QString("keys/%1").arg(id), {}, {}, sequenceOf(key), sequenceOf(otherKey)}};
}

std::vector<CommandKey> commandKeys() {
    std::vector<CommandKey> keys;
    for (const auto& menu : commandMenus()) {
        for (const auto& command : menu.commands)
            if (command.id != kGroup)
                keys.push_back(keyOf(command.id, menu.id, command.text, command.key, command.otherKey));
        if (menu.id != host::kViewMenuId) continue;
        for (const auto& command : dockCommands())
            keys.push_back(keyOf(command.id, menu.id, command.text, command.key));
    }
    return keys;
}

QString plainText(const std::string& caption) { return qt(host::withoutMnemonic(caption)).remove("..."); }

} // namespace

CommandLook commandLookOf(int id) {
    for (const auto& command : commandKeys()) {
        if (command.id != id) continue;
        const auto key = command.option.stored();
        return {key, key == command.option.usual ? command.option.otherUsual : QKeySequence(), iconOfCommand(id)};
    }
    return {};
}

QList<QKeySequence> chosenKeys() {
    QList<QKeySequence> keys;
    for (const auto& command : commandKeys())
        if (const auto key = command.option.stored(); key != command.option.usual) keys << key;
    return keys;
}

std::vector<KeyOption> keyOptions(host::Host& host) {
    std::vector<KeyOption> options;
    for (const auto& command : commandKeys()) {
        const auto control = controlOf(host, command.id);
        if (control && control->popup()) continue;
        auto option = command.option;
        option.menu = plainText(controlOf(host, command.menu)->Caption());
        // a dock's command may not be in its menu yet
        option.command = plainText(command.text ? command.text : control->Caption());
        options.push_back(option);
    }
    return options;
}

} // namespace workbench
