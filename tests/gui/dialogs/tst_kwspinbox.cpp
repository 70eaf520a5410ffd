#include "gui/dialogs/kwspinbox.h"
#include "support/gui/dialogtest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

/// A box with the number 5 in a window with another field.
struct Box
{
    Box()
    {
        box->setValue(5);
        box->move(0, 60);
        window.resize(200, 120);
        window.show();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("no keys");
    }

    bool turnWheel()
    {
        const QPointF place(box->rect().center());
        QWheelEvent wheel(place, box->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &wheel);
        return wheel.isAccepted();
    }

    QWidget window;
    QLineEdit *other = new QLineEdit(&window);
    KWSpinBox *box = new KWSpinBox(&window);
};
} // namespace

class TestKWSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void theWheelPassesOverABoxWithoutTheFocus()
    {
        Box form;
        form.other->setFocus();
        QVERIFY(!form.turnWheel());
        QCOMPARE(form.box->value(), 5);
        QCOMPARE(form.box->focusPolicy(), Qt::StrongFocus);
    }

    void theWheelChangesABoxWithTheFocus()
    {
        Box form;
        form.box->setFocus();
        QVERIFY(form.turnWheel());
        QCOMPARE(form.box->value(), 4);
    }
};

REGISTER_TEST(TestKWSpinBox)
#include "tst_kwspinbox.moc"
