#pragma once

#include "dialogtest.h"
#include "kwcolourbutton.h"
#include "kwcoloursandfontsdlgimpl.h"
#include "loggingwindow.h"
#include "themeshelf.h"

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
