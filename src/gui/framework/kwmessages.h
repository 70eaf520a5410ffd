#pragma once

#include <QString>

/// Message boxes over the main window, with the product's name as caption and the first button as
/// default. Each returns the index of the button pressed, from 0, or -1 if the box went down
/// without one. Empty button texts give no button.
int warningBox(const QString &text, const QString &button0, const QString &button1 = {},
               const QString &button2 = {});
int errorBox(const QString &text, const QString &button0, const QString &button1 = {},
             const QString &button2 = {});
