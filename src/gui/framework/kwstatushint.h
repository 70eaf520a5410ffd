#pragma once

class QString;
class QWidget;

/// Shows a text on the status bar of the window in which the widget is, until the next text comes;
/// an empty one takes it away. For what holds as long as a person does something, such as a drag.
void showStatusHint(QWidget *widget, const QString &text);
