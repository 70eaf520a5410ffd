#include "gui/framework/kwbusy.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"

namespace {
/// The shape of the override cursor, or nothing.
std::optional<Qt::CursorShape> cursor()
{
    const QCursor *shown = QApplication::overrideCursor();
    return shown ? std::optional(shown->shape()) : std::nullopt;
}
} // namespace

class TestKWBusy : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QVERIFY(!cursor()); }

    void theWaitCursorIsUpUntilTheLastStretchEnds()
    {
        beginBusy();
        QCOMPARE(cursor(), Qt::WaitCursor);
        beginBusy();
        QCOMPARE(cursor(), Qt::WaitCursor);
        endBusy();
        QCOMPARE(cursor(), Qt::WaitCursor);
        endBusy();
        QVERIFY(!cursor());
    }

    void nestedStretchesRaiseOneCursor()
    {
        const KWBusy outer;
        {
            const KWBusy inner;
        }
        QApplication::restoreOverrideCursor();
        QVERIFY(!cursor());
    }

    void anOverrideCursorThatIsThereStaysUpAndGoesWithTheStretch()
    {
        QApplication::setOverrideCursor(Qt::CrossCursor);
        {
            const KWBusy busy;
            QCOMPARE(cursor(), Qt::CrossCursor);
        }
        QVERIFY(!cursor());
    }

    void theWaitCursorComesBackWithTheNextStretchInside()
    {
        const KWBusy outer;
        QApplication::restoreOverrideCursor();
        QVERIFY(!cursor());
        const KWBusy inner;
        QCOMPARE(cursor(), Qt::WaitCursor);
    }

    void theArrowHidesTheWaitCursorForAWhile()
    {
        const KWBusy busy;
        {
            const KWArrowCursor arrow;
            QCOMPARE(cursor(), Qt::ArrowCursor);
            const KWBusy inside;
            QCOMPARE(cursor(), Qt::ArrowCursor);
        }
        QCOMPARE(cursor(), Qt::WaitCursor);
    }
};

REGISTER_TEST(TestKWBusy)
#include "tst_kwbusy.moc"
