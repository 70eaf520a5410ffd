#pragma once

#include <QString>

class KWUserSettings;

/// Message boxes over the main window or the dialog that is up, with the product's name as caption
/// and the first button as default. Each returns the index of the button pressed, from 0, or -1 if
/// the box went down without one. Empty button texts give no button.
int warningBox(const QString &text, const QString &button0, const QString &button1 = {},
               const QString &button2 = {});
int errorBox(const QString &text, const QString &button0, const QString &button1 = {},
             const QString &button2 = {});

/// A warning that the user can switch off at its settings key, such as "warning/delete_guest". The
/// index of the button pressed, where 0 means go on; 0 at once if it was switched off; -1 if the
/// warning went down with the dialog under it.
int configurableWarning(KWUserSettings *settings, const QString &key, const QString &text);
