#pragma once

#include "gui/floorplan/kwfloorplanviewfilterimpl.h"
#include "support/gui/canvasplan.h"
#include "support/gui/dialogtest.h"
#include "support/gui/shownplan.h"

/// The panel, unfolded, in a window of its own, with the floor plan in another.
struct PanelPlan : ShownPlan
{
    KWFloorPlanViewFilterImpl panel{nullptr, &view};
    QComboBox *names = child<QComboBox>(panel, "m_nameOrderComboBox");
    QComboBox *seats = child<QComboBox>(panel, "m_seatsComboBox");

    PanelPlan()
    {
        panel.expand();
        panel.show();
        panel.activateWindow();
        if (!QTest::qWaitForWindowActive(&panel))
            qFatal("no keys");
        plan.setModified(false);
    }
    ~PanelPlan() { resetSeats(canvas); }

    QToolButton *button(const QString &name) { return child<QToolButton>(panel, name); }
    QToolButton *button(const char *name) { return child<QToolButton>(panel, name); }
    QCheckBox *box(const char *name) { return child<QCheckBox>(panel, name); }
    void click(const char *name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    /// Where the hand of a person clicks on a check box.
    void check(const char *name)
    {
        QTest::mouseClick(box(name), Qt::LeftButton, {}, {8, box(name)->height() / 2});
    }

    /// "gender age" of the boxes for which that is so.
    QString boxes(const std::function<bool(const QCheckBox *)> &holds)
    {
        QStringList all;
        for (const char *name : {"gender", "age", "groups", "vip", "locked"}) {
            if (holds(box(qPrintable(s("m_%1CheckBox").arg(s(name))))))
                all.append(s(name));
        }
        return all.join(u' ');
    }
    QString checked()
    {
        return boxes([](const QCheckBox *box) { return box->isChecked(); });
    }
    QString enabled()
    {
        return boxes([](const QCheckBox *box) { return box->isEnabled(); });
    }

    /// "in out" of the zoom buttons that can be pressed.
    QString zoomButtons()
    {
        QStringList all;
        if (button("m_zoomInButton")->isEnabled())
            all.append(s("in"));
        if (button("m_zoomOutButton")->isEnabled())
            all.append(s("out"));
        return all.join(u' ');
    }

    /// A pair for each wish that is not met, and one that sits next to each other as it should.
    void seatWishes()
    {
        KWTable *first = table("A", KWTable::Circular, 8, {500, 400});
        KWTable *second = table("B", KWTable::Circular, 8, {1300, 400});
        const auto pair = [this](const char *a, KWTable *tableA, int seatA, const char *b,
                                 KWTable *tableB, int seatB, int value) {
            plan.setAffinity(seat(a, tableA, seatA), seat(b, tableB, seatB), value, false);
        };
        pair("Ann", first, 0, "Bob", second, 0, KWScore::Loves);
        pair("Cleo", first, 1, "Dan", second, 1, KWScore::Likes);
        pair("Eva", first, 2, "Fred", first, 3, KWScore::Dislikes);
        pair("Gil", second, 2, "Hal", second, 4, KWScore::Hates);
        pair("Ida", first, 5, "Jo", first, 6, KWScore::Loves);
        plan.setModified(false);
    }
    QString lines() const { return lineColours(canvas); }
};

/// "gender age" of what the floor plan shows.
inline QString shownFlags()
{
    const KWFloorPlanLook::Seats &display = KWCanvas::display();
    QStringList names;
    const auto note = [&names](bool on, const char *name) {
        if (on)
            names.append(s(name));
    };
    note(display.gender, "gender");
    note(display.age, "age");
    note(display.groups, "groups");
    note(display.vip, "vip");
    note(display.locked, "locked");
    return names.join(u' ');
}
