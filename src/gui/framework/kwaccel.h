#pragma once

#include <QShortcut>
#include <QWidget>

/// A key of the widget's window that stands in no menu; dialogs bind "F1" to their help() with it.
template <typename Receiver, typename Slot>
void addAccel(QWidget *widget, const QKeySequence &keys, Receiver *receiver, Slot slot)
{
    QObject::connect(new QShortcut(keys, widget), &QShortcut::activated, receiver, slot);
}
