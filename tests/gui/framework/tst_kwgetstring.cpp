#include "gui/appearance/kwstylehelper.h"
#include "gui/framework/kwgetstringdlgimpl.h"
#include "support/gui/dialogtest.h"
#include "support/gui/modaluser.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {
using Dialog = KWGetStringDlgImpl;

std::unique_ptr<Dialog> ask(const char *text, bool allowEmpty = false, const char *topic = "")
{
    return std::make_unique<Dialog>(nullptr, s("Theme name"), s("Theme name:"), s(text), allowEmpty,
                                    s(topic));
}

QLineEdit *edit(const Dialog &dialog)
{
    return dialog.findChild<QLineEdit *>(s("m_stringEdit"));
}

QPushButton *button(const Dialog &dialog, const char *name)
{
    return dialog.findChild<QPushButton *>(s(name));
}

QColor iconColour(const QWidget &window)
{
    return window.windowIcon().pixmap(16).toImage().pixelColor(8, 8);
}

QPixmap square(Qt::GlobalColor colour)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(colour);
    return pixmap;
}
} // namespace

class TestKWGetString : public QObject
{
    Q_OBJECT

private slots:
    void theDialogShowsWhatItIsGiven()
    {
        const auto dialog = ask("Garden");
        QCOMPARE(dialog->windowTitle(), s("Theme name"));
        const auto *label = dialog->findChild<QLabel *>(s("m_stringLabel"));
        QCOMPARE(label->text(), s("Theme name:"));
        QCOMPARE(label->buddy(), edit(*dialog));
        QCOMPARE(dialog->text(), s("Garden"));
        QCOMPARE(edit(*dialog)->selectedText(), s("Garden"));
        QCOMPARE(button(*dialog, "m_okButton")->text(), s("&OK"));
        QCOMPARE(button(*dialog, "m_cancelButton")->text(), s("&Cancel"));
        QCOMPARE(button(*dialog, "m_helpButton")->text(), s("&Help"));
        QVERIFY(dialog->findChild<KWStyleHelper *>());
    }

    void anEmptyTextCanOnlyBeAcceptedWhereItIsAllowed()
    {
        const auto dialog = ask("");
        const QPushButton *ok = button(*dialog, "m_okButton");
        QVERIFY(!ok->isEnabled());
        QTest::keyClicks(edit(*dialog), s(" "));
        QVERIFY(ok->isEnabled());
        QTest::keyClick(edit(*dialog), Qt::Key_Backspace);
        QVERIFY(!ok->isEnabled());
        QVERIFY(button(*ask("", true), "m_okButton")->isEnabled());
        QVERIFY(button(*ask("Garden"), "m_okButton")->isEnabled());
    }

    void typingReplacesTheInitialTextAndReturnAccepts()
    {
        ModalUser user;
        user.onDialog<Dialog>([](Dialog &dialog) {
            QVERIFY(edit(dialog)->hasFocus());
            QTest::keyClicks(edit(dialog), s("Beach"));
            QTest::keyClick(edit(dialog), Qt::Key_Return);
        });
        const auto dialog = ask("Garden");
        QCOMPARE(dialog->exec(), int(QDialog::Accepted));
        QCOMPARE(dialog->text(), s("Beach"));
    }

    void returnDoesNothingOnAnEmptyText()
    {
        ModalUser user;
        user.onDialog<Dialog>([](Dialog &dialog) {
            QTest::keyClick(edit(dialog), Qt::Key_Return);
            QVERIFY(dialog.isVisible());
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        QCOMPARE(ask("")->exec(), int(QDialog::Rejected));
    }

    void cancelRejects()
    {
        ModalUser user;
        user.onDialog<Dialog>([](Dialog &dialog) {
            QTest::mouseClick(button(dialog, "m_cancelButton"), Qt::LeftButton);
        });
        QCOMPARE(ask("Garden")->exec(), int(QDialog::Rejected));
    }

    void withoutATopicThereIsNoHelp()
    {
        ScriptedPrompts user;
        const auto dialog = ask("Garden");
        QVERIFY(button(*dialog, "m_helpButton")->isHidden());
        dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
        QTest::keyClick(dialog.get(), Qt::Key_F1);
        QCOMPARE(user.texts(), QStringList());
    }

    void theButtonAndF1ShowTheTopic()
    {
        const auto dialog = ask("Garden", false, "No_such_topic.htm");
        QPushButton *help = button(*dialog, "m_helpButton");
        QVERIFY(!help->isHidden());
        QVERIFY(showActive(*dialog));
        QCOMPARE(topicAskedFor([&] { QTest::keyClick(dialog.get(), Qt::Key_F1); }),
                 s("No_such_topic.htm"));
        QCOMPARE(topicAskedFor([&] { QTest::mouseClick(help, Qt::LeftButton); }),
                 s("No_such_topic.htm"));
    }

    void theIconIsTheOneGivenOrTheParents()
    {
        QWidget parent;
        parent.setWindowIcon(square(Qt::magenta));
        const Dialog own(&parent, s("Theme name"), s("Theme name:"), s("Garden"), false, {},
                         square(Qt::green), s("theme dialog"));
        QCOMPARE(iconColour(own), QColor(Qt::green));
        QCOMPARE(own.objectName(), s("theme dialog"));
        const Dialog parents(&parent, s("Theme name"), s("Theme name:"), s("Garden"), false);
        QCOMPARE(iconColour(parents), QColor(Qt::magenta));
    }

    void modalityAndFlagsAreTheOnesGiven()
    {
        const Dialog dialog(nullptr, s("Theme name"), s("Theme name:"), {}, false, {}, {}, {}, true,
                            Qt::Dialog | Qt::WindowStaysOnTopHint);
        QVERIFY(dialog.isModal());
        QVERIFY(dialog.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(!ask("")->isModal());
        QVERIFY(!ask("")->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    }

    void theSizeIsFixedAtTheSmallestThatShowsEverything()
    {
        const auto dialog = ask("Garden", false, "Main_window.htm");
        QCOMPARE(dialog->minimumSize(), dialog->maximumSize());
        QCOMPARE(dialog->size(), dialog->minimumSize());
        dialog->show();
        for (const QWidget *child : dialog->findChildren<QWidget *>()) {
            if (child->isVisible() && child->parentWidget() == dialog.get())
                QVERIFY2(dialog->rect().contains(child->geometry()),
                         qPrintable(child->objectName()));
        }
    }
};

REGISTER_TEST(TestKWGetString)
#include "tst_kwgetstring.moc"
