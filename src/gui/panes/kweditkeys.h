#pragma once

class QKeyEvent;

/// Whether the key stands for a command of the Edit menu that line edits take for a way to move or
/// to delete. A field among lists leaves it to the command: say so at ShortcutOverride.
bool isEditCommand(const QKeyEvent &key);
