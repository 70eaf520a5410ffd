#pragma once

#include <QStringList>

#include <functional>

class QWidget;

/// What a well-made window looks like and how it answers the keyboard. Each check goes through what
/// is visible of the window, which must be shown, and gives a line for each fault.
namespace DialogChecks {

using Check = std::function<QStringList(QWidget *window)>;

/// Labels with a mnemonic that lead nowhere, and fields that no label, group or name tells of.
QStringList unnamedFields(QWidget *window);
/// Steps of the Tab key that go up, or to the left in a row.
QStringList backwardTabs(QWidget *window);
/// Letters that more than one enabled widget has: "Alt+C: m_cancelButton, m_childLabel", the names
/// in the order of the alphabet. All tabs count.
QStringList mnemonicClashes(QWidget *window);
/// Buttons, labels, titles, tabs and fields that are too small for what they say.
QStringList cutTexts(QWidget *window);
/// Widgets that stick out of their parents.
QStringList strayWidgets(QWidget *window);
/// Labels, or fields, of a grid's column with neither their left nor their right edges in line.
QStringList raggedColumns(QWidget *window);

/// The faults that the check finds with each page of the window's tabs in front in turn.
QStringList onEachPage(QWidget *window, const Check &check);

} // namespace DialogChecks
