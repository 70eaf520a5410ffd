#include "gui/floorplan/kwholdbutton.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QDialog>
#include <QMenu>
#include <QVBoxLayout>

namespace {

/// A window with two such buttons that writes down what they tell.
struct Held
{
    QWidget window;
    KWHoldButton button{&window};
    KWHoldButton other{&window};
    /// "+" for each pressed() and "-" for each released().
    QString told;

    Held()
    {
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(&button);
        layout->addWidget(&other);
        QObject::connect(&button, &KWHoldButton::pressed, &window, [this] { told += u'+'; });
        QObject::connect(&button, &KWHoldButton::released, &window, [this] { told += u'-'; });
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("no keys");
        // As in the program, where a click on such a button leaves it where it is.
        other.setFocus();
    }

    void press() { QTest::mousePress(&button, Qt::LeftButton); }
    void release() { QTest::mouseRelease(&button, Qt::LeftButton); }
    void moveTo(const QPoint &place)
    {
        QMouseEvent move(QEvent::MouseMove, place, button.mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&button, &move);
    }
    void moveAside() { moveTo({-20, -20}); }
    void moveOver() { moveTo(button.rect().center() + QPoint(1, 1)); }
};

/// What takes the button out of the user's hand.
using Loss = std::function<void(Held &)>;

void hide(Held &held)
{
    held.button.hide();
}

void hideWindow(Held &held)
{
    held.window.hide();
}

void disable(Held &held)
{
    held.button.setEnabled(false);
}

void disableWindow(Held &held)
{
    held.window.setEnabled(false);
}
} // namespace

Q_DECLARE_METATYPE(Loss)

class TestKWHoldButton : public QObject
{
    Q_OBJECT

private slots:
    void holdingIsToldAtItsBeginningAndItsEnd()
    {
        Held held;
        held.press();
        QCOMPARE(held.told, s("+"));
        held.release();
        QCOMPARE(held.told, s("+-"));
    }

    void onlyTheLeftMouseButtonHolds()
    {
        Held held;
        QTest::mousePress(&held.button, Qt::RightButton);
        QTest::mouseRelease(&held.button, Qt::RightButton);
        QCOMPARE(held.told, QString());
        held.press();
        QTest::mouseClick(&held.button, Qt::RightButton);
        QCOMPARE(held.told, s("+"));
    }

    void thePointerLetsGoWhenItLeavesAndHoldsAgainWhenItComesBack()
    {
        Held held;
        held.press();
        held.moveAside();
        QCOMPARE(held.told, s("+-"));
        held.moveOver();
        QCOMPARE(held.told, s("+-+"));
        held.moveAside();
        held.release();
        QCOMPARE(held.told, s("+-+-"));
    }

    void theSpaceBarHoldsToo()
    {
        Held held;
        held.button.setFocus();
        QTest::keyPress(&held.button, Qt::Key_Space);
        QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, {}, s(" "), true);
        QCoreApplication::sendEvent(&held.button, &again);
        QCOMPARE(held.told, s("+"));
        QTest::keyRelease(&held.button, Qt::Key_Space);
        QCOMPARE(held.told, s("+-"));
    }

    void whatTakesItAwayEndsTheHolding_data()
    {
        QTest::addColumn<Loss>("lose");
        QTest::newRow("it is hidden") << Loss(hide);
        QTest::newRow("its window is hidden") << Loss(hideWindow);
        QTest::newRow("it is disabled") << Loss(disable);
        QTest::newRow("its window is disabled") << Loss(disableWindow);
    }

    void whatTakesItAwayEndsTheHolding()
    {
        QFETCH(Loss, lose);
        Held held;
        held.press();
        lose(held);
        QCOMPARE(held.told, s("+-"));
        QVERIFY(!held.button.isDown());
        // What comes back does not find itself held.
        held.window.setEnabled(true);
        held.button.setEnabled(true);
        held.window.show();
        held.button.show();
        held.moveAside();
        held.moveOver();
        held.release();
        QCOMPARE(held.told, s("+-"));
    }

    void whatTakesItAwayWhileThePointerIsOutsideEndsItToo_data()
    {
        whatTakesItAwayEndsTheHolding_data();
    }

    void whatTakesItAwayWhileThePointerIsOutsideEndsItToo()
    {
        QFETCH(Loss, lose);
        Held held;
        held.press();
        held.moveAside();
        lose(held);
        held.button.window()->setEnabled(true);
        held.button.setEnabled(true);
        held.button.window()->show();
        held.button.show();
        held.moveOver();
        QCOMPARE(held.told, s("+-"));
    }

    void whatTakesItAwayEndsTheHoldingOfAKey_data() { whatTakesItAwayEndsTheHolding_data(); }

    void whatTakesItAwayEndsTheHoldingOfAKey()
    {
        QFETCH(Loss, lose);
        Held held;
        held.button.setFocus();
        QTest::keyPress(&held.button, Qt::Key_Space);
        lose(held);
        QCOMPARE(held.told, s("+-"));
    }

    void aWindowThatLosesTheFocusEndsTheHolding()
    {
        Held held;
        held.press();
        QWidget next;
        next.show();
        next.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&next));
        QCOMPARE(held.told, s("+-"));
        // The mouse button is still down, but holds this no longer.
        held.moveAside();
        held.moveOver();
        held.release();
        QCOMPARE(held.told, s("+-"));
        held.press();
        QCOMPARE(held.told, s("+-+"));
        held.moveAside();
        QCOMPARE(held.told, s("+-+-"));
    }

    void aDialogThatComesUpEndsTheHolding()
    {
        Held held;
        held.press();
        // There are desktops on which a new window does not get the keys.
        QDialog dialog(&held.window, Qt::ToolTip);
        dialog.open();
        QCOMPARE(QApplication::activeWindow(), &held.window);
        QTRY_COMPARE(held.told, s("+-"));
        QVERIFY(!held.button.isDown());
    }

    void aReleaseThatAMenuTakesEndsTheHolding()
    {
        Held held;
        held.press();
        QMenu menu;
        menu.addAction(s("Entry"));
        menu.popup(held.window.mapToGlobal(QPoint(0, 0)));
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QTest::mouseRelease(menu.windowHandle(), Qt::LeftButton, {}, {-50, -50});
        QTRY_COMPARE(held.told, s("+-"));
    }

    void aMenuThatTakesTheKeysEndsTheHoldingOfAKey()
    {
        Held held;
        held.button.setFocus();
        QTest::keyPress(&held.button, Qt::Key_Space);
        QMenu menu;
        menu.addAction(s("Entry"));
        menu.popup(held.window.mapToGlobal(QPoint(0, 0)));
        QTRY_COMPARE(held.told, s("+-"));
    }

    void theFocusThatGoesOnEndsTheHoldingOfAKey()
    {
        Held held;
        held.button.setFocus();
        QTest::keyPress(&held.button, Qt::Key_Space);
        held.other.setFocus();
        QCOMPARE(held.told, s("+-"));
    }

    void aHeldButtonMayGo()
    {
        auto *button = new KWHoldButton;
        button->show();
        QTest::mousePress(button, Qt::LeftButton);
        delete button;
        QWidget next;
        next.show();
        QTest::mouseRelease(&next, Qt::LeftButton);
    }
};

REGISTER_TEST(TestKWHoldButton)
#include "tst_kwholdbutton.moc"
