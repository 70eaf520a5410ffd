#pragma once

#include "gui/dialogs/kwcoloursandfontsdlgimpl.h"
#include "gui/framework/kwcolourbutton.h"
#include "gui/framework/kwgetstringdlgimpl.h"
#include "support/gui/dialogtest.h"
#include "support/gui/modaluser.h"
#include "support/gui/themeshelf.h"

/// The dialog for colours and fonts with the parts that tests work with.
struct ColoursDialog : KWColoursAndFontsDlgImpl
{
    explicit ColoursDialog(KWDocument &plan, Mode mode = FloorPlan)
        : KWColoursAndFontsDlgImpl(nullptr, &plan, mode)
    {
    }

    QListWidget *list = child<QListWidget>(*this, "m_themeListBox");

    KWColourButton *colour(const char *name) const { return child<KWColourButton>(*this, name); }
    void click(const char *name)
    {
        QTest::mouseClick(child<QPushButton>(*this, name), Qt::LeftButton);
    }
    bool isEnabled(const char *name) const { return child<QWidget>(*this, name)->isEnabled(); }
    /// As a user picks it.
    void pick(const char *theme)
    {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rectOf(theme).center());
    }
    QRect rectOf(const char *theme) const
    {
        QListWidgetItem *item = list->findItems(s(theme), Qt::MatchFixedString).value(0);
        if (!item)
            qFatal("no theme %s", theme);
        return list->visualItemRect(item);
    }

    QStringList themes() const
    {
        QStringList names;
        for (int i = 0; i < list->count(); ++i)
            names.append(list->item(i)->text());
        return names;
    }
    QString current() const
    {
        return list->currentItem() ? list->currentItem()->text() : s("none");
    }

    /// What the buttons show of `names`, as "1,2,3 4,5,6".
    QString shown(const QList<const char *> &names) const
    {
        QStringList texts;
        for (const char *name : names) {
            const QColor shown = colour(name)->colour();
            texts.append(s("%1,%2,%3").arg(shown.red()).arg(shown.green()).arg(shown.blue()));
        }
        return texts.join(u' ');
    }
    QString shownFloorPlan() const
    {
        return shown({"m_tablesColourButton", "m_tableEdgeColourButton", "m_seatsColourButton",
                      "m_seatEdgeColourButton", "m_insideColourButton", "m_outsideColourButton",
                      "m_seatTextColourButton", "m_tableTextColourButton",
                      "m_selectedColourButton"});
    }
    QString shownChart() const
    {
        return shown({"m_chartBackgroundColourButton", "m_chartTextColourButton"});
    }
};

/// A file in the directory where the program keeps the user's own themes.
inline QString ownThemes(const char *file = "themes.txt")
{
    return testHome().path(s("Veltrace/Ambrelune/") + s(file));
}

inline QString rgb(const QColor &colour)
{
    return s("%1,%2,%3").arg(colour.red()).arg(colour.green()).arg(colour.blue());
}

inline void writeOwnThemes(const QByteArray &themes)
{
    ThemeShelf::write(ownThemes(), themes);
}

/// Puts a directory in their place, which not even root can read as a file.
inline void makeOwnThemesUnreadable()
{
    QVERIFY(QFile::remove(ownThemes()));
    QVERIFY(QDir().mkpath(ownThemes()));
}

/// Each message, as "Ambrelune: Delete theme 'Blue'? [OK|Cancel]?", with "!" behind an error.
inline QStringList messages(const ScriptedPrompts &prompts)
{
    QStringList lines;
    for (const KWMessage &message : prompts.messages)
        lines.append(s("%1: %2 [%3]%4")
                         .arg(message.caption, message.text, message.buttons.join(u'|'),
                              message.icon == KWMessage::Warning ? s("?") : s("!")));
    return lines;
}

/// Types a name into the window that asks for one.
inline void giveName(ModalUser &user, const QString &name, const QString &proposed = {})
{
    user.onDialog<KWGetStringDlgImpl>([=](KWGetStringDlgImpl &dialog) {
        QCOMPARE(dialog.windowTitle(), s("Theme name"));
        QCOMPARE(child<QLabel>(dialog, "m_stringLabel")->text(), s("Theme name:"));
        QCOMPARE(dialog.text(), proposed);
        QVERIFY(!child<QWidget>(dialog, "m_helpButton")->isVisible());
        auto *edit = child<QLineEdit>(dialog, "m_stringEdit");
        edit->setText(name);
        QTest::keyClick(edit, Qt::Key_Return);
    });
}

/// What is in the file of the user's own themes.
inline QByteArray ownFile()
{
    return ThemeShelf::read(ownThemes());
}

/// An open dialog for a plan of its own, with answers for its questions.
struct OpenColours
{
    explicit OpenColours(KWColoursAndFontsDlgImpl::Mode mode = KWColoursAndFontsDlgImpl::FloorPlan)
        : dialog(plan, mode)
    {
        active = showActive(dialog);
    }

    KWDocument plan;
    ScriptedPrompts prompts;
    ModalUser user;
    ColoursDialog dialog;
    bool active = false;
};

inline void chartRows()
{
    QTest::addColumn<KWColoursAndFontsDlgImpl::Mode>("mode");
    QTest::newRow("table chart") << KWColoursAndFontsDlgImpl::TableChart;
    QTest::newRow("guest chart") << KWColoursAndFontsDlgImpl::GuestChart;
}

inline QFont serif(int size)
{
    QFont font(s("Serif"));
    font.setPointSize(size);
    return font;
}

/// A plan with another value for each colour and font.
inline void fill(KWDocument &plan)
{
    const KWColours colours = manyColours();
    plan.setFloorplanColourSeats(colours.seats);
    plan.setFloorplanColourSeatsEdge(colours.seatsEdge);
    plan.setFloorplanColourTables(colours.tables);
    plan.setFloorplanColourTablesEdge(colours.tablesEdge);
    plan.setFloorplanColourInside(colours.inside);
    plan.setFloorplanColourOutside(colours.outside);
    plan.setFloorplanColourSeatsText(colours.seatsText);
    plan.setFloorplanColourTableText(colours.tableText);
    plan.setFloorplanColourSelected(colours.selected);
    plan.setFloorPlanFont(serif(12));
    plan.setTableChartColourBackground({31, 32, 33});
    plan.setTableChartColourText({34, 35, 36});
    plan.setTableChartFont(serif(13));
    plan.setGuestChartColourBackground({41, 42, 43});
    plan.setGuestChartColourText({44, 45, 46});
    plan.setGuestChartFont(serif(14));
}

/// Null for the floor plan.
inline QTextEdit *textView(const ColoursDialog &dialog)
{
    return dialog.findChild<QTextEdit *>();
}
