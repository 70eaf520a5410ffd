#pragma once

#include "support/brackettranslator.h"
#include "support/gui/guitest.h"
#include "support/gui/scriptedprompts.h"

#include <QtWidgets>

/// The widget of that class and name; the test ends here if there is none.
template <typename Widget>
Widget *child(const QWidget &window, const QString &name)
{
    auto *widget = window.findChild<Widget *>(name);
    if (!widget)
        qFatal("no %s %s", Widget::staticMetaObject.className(), qPrintable(name));
    return widget;
}

template <typename Widget>
Widget *child(const QWidget &window, const char *name)
{
    return child<Widget>(window, QString::fromLatin1(name));
}

/// Shows a dialog and waits until it gets the keys.
[[nodiscard]] inline bool showActive(QDialog &dialog)
{
    dialog.show();
    return QTest::qWaitForWindowActive(&dialog);
}

/// One widget of a form. What is null or empty is not there.
struct FormRow
{
    const char *name;
    const char *text;
    const char *tip;
    const char *keys = "";
};

inline void addFormRows(const QList<FormRow> &rows)
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("tip");
    QTest::addColumn<QString>("keys");
    for (const FormRow &row : rows)
        QTest::newRow(row.name) << QString::fromUtf8(row.name) << QString::fromUtf8(row.text)
                                << QString::fromUtf8(row.tip) << QString::fromUtf8(row.keys);
}

/// The fetched row against the widget; what's-this texts are the tips.
inline void compareFormRow(const QWidget &window)
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    QFETCH(QString, tip);
    QFETCH(QString, keys);
    const auto *widget = child<QWidget>(window, name);
    const char *caption = qobject_cast<const QGroupBox *>(widget) ? "title" : "text";
    QCOMPARE(widget->property(caption).toString(), text);
    QCOMPARE(widget->toolTip(), tip);
    QCOMPARE(widget->whatsThis(), tip);
    QCOMPARE(widget->property("shortcut").value<QKeySequence>(), QKeySequence(keys));
}

/// Puts a broken help file where the program looks first, so that a message tells which topic of
/// it was asked for.
inline void breakHelpFile()
{
    QFile file(testHome().path(QStringLiteral("ambrelune_1_2_14.chm")));
    if (!file.open(QIODevice::WriteOnly) || file.write("no help") < 0)
        qFatal("no help file");
}

/// The help topic that is asked for while `act` runs.
inline QString topicAskedFor(const std::function<void()> &act)
{
    breakHelpFile();
    ScriptedPrompts prompts;
    prompts.answer(QStringLiteral("&OK"));
    act();
    return prompts.texts().value(0).section(u'\'', 1, 1);
}
