#include "core/model/kwviewsettings.h"
#include "gui/floorplan/kwfloorplanlook.h"
#include "support/registeredtest.h"

#include <QtTest>

class TestKWFloorPlanLook : public QObject
{
    Q_OBJECT

private slots:
    void whatIsWrittenIsReadAgain()
    {
        using Seats = KWFloorPlanLook::Seats;
        for (bool Seats::*mark :
             {&Seats::gender, &Seats::age, &Seats::vip, &Seats::groups, &Seats::locked}) {
            KWFloorPlanLook look{.nameOrder = 7, .seats = {.display = KWFloorPlanLook::NameOnly}};
            look.seats.*mark = true;
            KWViewSettings settings;
            look.writeTo(settings);
            QVERIFY(KWFloorPlanLook::of(settings) == look);
            // A mark that is off is written, too.
            KWFloorPlanLook().writeTo(settings);
            QVERIFY(KWFloorPlanLook::of(settings) == KWFloorPlanLook());
        }
    }

    void eachMarkHasItsPlaceInTheFile()
    {
        KWViewSettings settings;
        settings.floor_plan_show_age = true;
        QVERIFY(KWFloorPlanLook::of(settings).seats.age);
        settings.floor_plan_show_gender = true;
        QVERIFY(KWFloorPlanLook::of(settings).seats.gender);
        settings.floor_plan_show_groups = true;
        QVERIFY(KWFloorPlanLook::of(settings).seats.groups);
        settings.floor_plan_show_vip = true;
        QVERIFY(KWFloorPlanLook::of(settings).seats.vip);
        QVERIFY(!KWFloorPlanLook::of(settings).seats.locked);
        settings.floor_plan_show_locked = true;
        QVERIFY(KWFloorPlanLook::of(settings).seats.locked);
    }

    void numbersThatStandForNothingBecomeTheFirst()
    {
        for (const int number : {-1, 4, 8, 1000}) {
            KWViewSettings settings;
            settings.floor_plan_show_seats = number;
            QCOMPARE(KWFloorPlanLook::of(settings).seats.display, KWFloorPlanLook::CircularName);
        }
        for (const int number : {-1, 8, 1000}) {
            KWViewSettings settings;
            settings.floor_plan_name_order = number;
            QCOMPARE(KWFloorPlanLook::of(settings).nameOrder, 0);
        }
        for (int number = 0; number < 8; ++number) {
            KWViewSettings settings;
            settings.floor_plan_name_order = number;
            settings.floor_plan_show_seats = number % 4;
            QCOMPARE(KWFloorPlanLook::of(settings).nameOrder, number);
            QCOMPARE(int(KWFloorPlanLook::of(settings).seats.display), number % 4);
        }
    }

    void eachDisplayShowsItsParts()
    {
        const auto parts = [](KWFloorPlanLook::SeatDisplay display) {
            const KWFloorPlanLook::Seats seats{.display = display};
            return QString::number(seats.showsCircle()) + QString::number(seats.showsText());
        };
        QCOMPARE(parts(KWFloorPlanLook::CircularName), QStringLiteral("11"));
        QCOMPARE(parts(KWFloorPlanLook::Circular), QStringLiteral("10"));
        QCOMPARE(parts(KWFloorPlanLook::NameOnly), QStringLiteral("01"));
        QCOMPARE(parts(KWFloorPlanLook::None), QStringLiteral("00"));
    }
};

REGISTER_TEST(TestKWFloorPlanLook)
#include "tst_kwfloorplanlook.moc"
