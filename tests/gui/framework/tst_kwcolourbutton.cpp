#include "gui/framework/kwcolourbutton.h"
#include "support/gui/dialogtest.h"
#include "support/gui/modaluser.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

QPushButton *inner(const KWColourButton &button)
{
    return button.findChild<QPushButton *>();
}

[[nodiscard]] bool showActive(KWColourButton &button)
{
    button.show();
    return QTest::qWaitForWindowActive(&button);
}
} // namespace

class TestKWColourButton : public QObject
{
    Q_OBJECT

private slots:
    void theButtonConsistsOfItsParts()
    {
        const KWColourButton button;
        auto *layout = qobject_cast<QVBoxLayout *>(button.layout());
        QVERIFY(layout);
        QCOMPARE(layout->objectName(), s("layout"));
        QCOMPARE(button.findChildren<QPushButton *>().size(), 1);
        QCOMPARE(inner(button)->text(), s("..."));
        QVERIFY(button.findChild<QWidget *>(s("KWColourButton interior")));
    }

    void theColourIsTheBackgroundOfTheInterior()
    {
        KWColourButton button;
        button.setColour(QColor(12, 34, 56));
        QCOMPARE(button.colour(), QColor(12, 34, 56));
        const auto *interior = child<QWidget>(button, "KWColourButton interior");
        QCOMPARE(interior->palette().color(QPalette::Window), QColor(12, 34, 56));
        button.resize(90, 30);
        QCOMPARE(button.grab().toImage().pixelColor(45, 15), QColor(12, 34, 56));
        QCOMPARE(button.grab().toImage().pixelColor(12, 15), QColor(12, 34, 56));
    }

    void aColourThatIsSetTellsNobody()
    {
        KWColourButton button;
        const QSignalSpy changed(&button, &KWColourButton::colourChanged);
        button.setColour(Qt::red);
        button.setColour(Qt::blue);
        QCOMPARE(changed.size(), 0);
    }

    void aChosenColourIsShownAndToldOnce()
    {
        KWColourButton button;
        QVERIFY(showActive(button));
        ScriptedPrompts prompts;
        prompts.answerColour(QColor(1, 2, 3));
        QSignalSpy changed(&button, &KWColourButton::colourChanged);
        QTest::mouseClick(inner(button), Qt::LeftButton);
        QCOMPARE(button.colour(), QColor(1, 2, 3));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.first().first().value<QColor>(), QColor(1, 2, 3));
    }

    void theColourItselfCanBeClicked()
    {
        KWColourButton button;
        QVERIFY(showActive(button));
        ScriptedPrompts prompts;
        prompts.answerColour(QColor(1, 2, 3));
        // As the window gets it, which gives it to whatever lies there.
        QTest::mouseClick(button.windowHandle(), Qt::LeftButton, {}, button.rect().center());
        QCOMPARE(button.colour(), QColor(1, 2, 3));
    }

    void aCancelledChoiceChangesNothing()
    {
        KWColourButton button;
        button.setColour(Qt::green);
        ScriptedPrompts prompts;
        prompts.answerColour(std::nullopt);
        const QSignalSpy changed(&button, &KWColourButton::colourChanged);
        button.changeColour();
        QCOMPARE(button.colour(), QColor(Qt::green));
        QCOMPARE(changed.size(), 0);
    }

    void theChoiceBeginsWithThePresentColour()
    {
        KWColourButton button;
        button.setColour(QColor(40, 80, 120));
        ModalUser user;
        user.onDialog<QColorDialog>([](QColorDialog &dialog) {
            QCOMPARE(dialog.currentColor(), QColor(40, 80, 120));
            dialog.setCurrentColor(QColor(50, 90, 130));
            dialog.accept();
        });
        button.changeColour();
        QCOMPARE(button.colour(), QColor(50, 90, 130));
    }

    void theKeyboardReachesTheButton()
    {
        KWColourButton button;
        QVERIFY(showActive(button));
        button.setFocus();
        QVERIFY(inner(button)->hasFocus());
        ScriptedPrompts prompts;
        prompts.answerColour(QColor(1, 2, 3));
        QTest::keyClick(inner(button), Qt::Key_Space);
        QCOMPARE(button.colour(), QColor(1, 2, 3));
    }

    void theTipIsTheNameForThoseWhoDoNotSeeTheColour()
    {
        KWColourButton button;
        button.setToolTip(s("Change text colour"));
        QCOMPARE(inner(button)->accessibleName(), s("Change text colour"));
    }

    void theColourIsToldToo()
    {
        KWColourButton button;
        button.setColour(QColor(255, 250, 240));
        QCOMPARE(inner(button)->accessibleDescription(), s("red 255, green 250, blue 240"));
        ScriptedPrompts prompts;
        prompts.answerColour(QColor(1, 2, 3));
        button.changeColour();
        QCOMPARE(inner(button)->accessibleDescription(), s("red 1, green 2, blue 3"));
    }
};

REGISTER_TEST(TestKWColourButton)
#include "tst_kwcolourbutton.moc"
