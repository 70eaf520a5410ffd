#include "gui/appearance/kwstylehelper.h"
#include "gui/framework/kwconfigurablewarningdlgimpl.h"
#include "gui/framework/kwmessages.h"
#include "gui/framework/kwusersettings.h"
#include "support/gui/fakemainwindow.h"
#include "support/gui/guitest.h"
#include "support/gui/modaluser.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace {
using Dialog = KWConfigurableWarningDlgImpl;

const QString key = s("warning/delete_guest");

QPushButton *button(const QWidget &dialog, const char *name)
{
    return dialog.findChild<QPushButton *>(s(name));
}

QStringList visibleButtons(const QWidget &dialog)
{
    QStringList texts;
    for (const char *name : {"m_button1", "m_button2", "m_button3"}) {
        if (const QPushButton *shown = button(dialog, name); shown && !shown->isHidden())
            texts.append(shown->text());
    }
    return texts;
}

/// What configurableWarning() gives when the user does `act`.
int warn(const std::function<void(Dialog &)> &act)
{
    ModalUser user;
    user.onDialog<Dialog>(act);
    KWUserSettings settings;
    return configurableWarning(&settings, key, s("Really?"));
}
} // namespace

class TestKWConfigurableWarning : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void theTextsAreInTheirPlaces()
    {
        const Dialog dialog(nullptr, s("<b>Ann</b>\nReally?"));
        QCOMPARE(dialog.windowTitle(), s("Ambrelune"));
        const auto *message = dialog.findChild<QLabel *>(s("m_message"));
        QCOMPARE(message->text(), s("<b>Ann</b>\nReally?"));
        QCOMPARE(message->textFormat(), Qt::PlainText);
        const auto *box = dialog.findChild<QCheckBox *>(s("m_showWarningCheckBox"));
        QCOMPARE(box->text(), s("&show this warning in future"));
        QCOMPARE(box->toolTip(), s("Uncheck if you don't wish to see this warning again"));
        QCOMPARE(box->whatsThis(), box->toolTip());
        QVERIFY(box->isChecked());
        QCOMPARE(visibleButtons(dialog), (QStringList{s("&Yes"), s("&No")}));
        QCOMPARE(button(dialog, "m_button1")->shortcut(), QKeySequence(Qt::ALT | Qt::Key_Y));
        QCOMPARE(button(dialog, "m_button2")->shortcut(), QKeySequence(Qt::ALT | Qt::Key_N));
        QVERIFY(button(dialog, "m_button1")->isDefault());
        QVERIFY(dialog.findChild<KWStyleHelper *>());
    }

    void buttonsTakeTheTextsGivenAndKeepTheirOwnWithoutOne_data()
    {
        QTest::addColumn<QStringList>("given");
        QTest::addColumn<QStringList>("shown");
        QTest::newRow("none") << QStringList() << QStringList{s("&Yes"), s("&No")};
        QTest::newRow("one") << QStringList{s("&Go on")} << QStringList{s("&Go on"), s("&No")};
        QTest::newRow("second") << QStringList{QString(), s("&Stop")}
                                << QStringList{s("&Yes"), s("&Stop")};
        QTest::newRow("three") << QStringList{s("&A"), s("&B"), s("&C")}
                               << QStringList{s("&A"), s("&B"), s("&C")};
    }

    void buttonsTakeTheTextsGivenAndKeepTheirOwnWithoutOne()
    {
        QFETCH(QStringList, given);
        QFETCH(QStringList, shown);
        QCOMPARE(visibleButtons(Dialog(nullptr, s("Really?"), given)), shown);
    }

    void eachButtonClosesWithItsIndex_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("result");
        QTest::newRow("first") << s("m_button1") << 0;
        QTest::newRow("second") << s("m_button2") << 1;
        QTest::newRow("third") << s("m_button3") << 2;
    }

    void eachButtonClosesWithItsIndex()
    {
        QFETCH(QString, name);
        QFETCH(int, result);
        Dialog dialog(nullptr, s("Really?"), {s("&A"), s("&B"), s("&C")});
        dialog.setResult(-1);
        dialog.show();
        dialog.findChild<QPushButton *>(name)->click();
        QCOMPARE(dialog.result(), result);
        QVERIFY(!dialog.isVisible());
    }

    void escAndTheCloseBoxCountAsTheLastButton_data()
    {
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<int>("result");
        QTest::newRow("two") << QStringList() << 1;
        QTest::newRow("three") << QStringList{s("&A"), s("&B"), s("&C")} << 2;
    }

    void escAndTheCloseBoxCountAsTheLastButton()
    {
        QFETCH(QStringList, buttons);
        QFETCH(int, result);
        Dialog dialog(nullptr, s("Really?"), buttons);
        dialog.show();
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), result);
        dialog.setResult(-1);
        dialog.show();
        dialog.close();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), result);
    }

    void aBoxThatStartsUncheckedSaysSo()
    {
        Dialog dialog(nullptr, s("Really?"), {}, false);
        QVERIFY(!dialog.showWarning());
        dialog.findChild<QCheckBox *>()->click();
        QVERIFY(dialog.showWarning());
    }

    void theIconIsTheMainWindows()
    {
        FakeMainWindow window;
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::magenta);
        window.widget()->setWindowIcon(pixmap);
        const Dialog dialog(nullptr, s("Really?"));
        QCOMPARE(dialog.windowIcon().pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::magenta));
    }

    void aWarningThatWasSwitchedOffGoesOnWithoutADialog()
    {
        KWUserSettings settings;
        settings.setWarningDeleteGuest(false);
        QCOMPARE(configurableWarning(&settings, key, s("Really?")), 0);
        QVERIFY(!settings.warningDeleteGuest());
    }

    void theAnswerIsTheButtonsIndex()
    {
        QCOMPARE(warn([](Dialog &dialog) {
                     QCOMPARE(dialog.findChild<QLabel *>(s("m_message"))->text(), s("Really?"));
                     QTest::keyClick(&dialog, Qt::Key_Y, Qt::AltModifier);
                 }),
                 0);
        QCOMPARE(warn([](Dialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Return); }), 0);
        QCOMPARE(warn([](Dialog &dialog) { QTest::keyClick(&dialog, Qt::Key_N, Qt::AltModifier); }),
                 1);
        QCOMPARE(warn([](Dialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }), 1);
        QVERIFY(KWUserSettings().warningDeleteGuest());
    }

    void aBlankPressesTheDefaultButtonAndLeavesTheBoxAlone()
    {
        QCOMPARE(warn([](Dialog &dialog) {
                     QVERIFY(button(dialog, "m_button1")->hasFocus());
                     QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
                 }),
                 0);
        QVERIFY(KWUserSettings().warningDeleteGuest());
    }

    void theTabKeyGoesThroughTheButtonsToTheBox()
    {
        warn([](Dialog &dialog) {
            QStringList stops;
            for (int i = 0; i < 4; ++i) {
                stops.append(QApplication::focusWidget()->objectName());
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            }
            QCOMPARE(stops, (QStringList{s("m_button1"), s("m_button2"), s("m_showWarningCheckBox"),
                                         s("m_button1")}));
            dialog.button1Pressed();
        });
    }

    void aReaderFindsNoButtonWithoutAText()
    {
        const Dialog dialog(nullptr, s("Really?"));
        for (const QPushButton *button : dialog.findChildren<QPushButton *>())
            QVERIFY(!button->text().isEmpty());
        QCOMPARE(dialog.findChildren<QPushButton *>().size(), 2);
    }

    void aNameOfAnyLengthLeavesTheButtonsOnTheScreen_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("one word") << QString(5000, u'w');
        QTest::newRow("many words") << s("word ").repeated(1000);
        QTest::newRow("many lines") << s("line\n").repeated(1000);
    }

    void aNameOfAnyLengthLeavesTheButtonsOnTheScreen()
    {
        QFETCH(QString, name);
        Dialog dialog(nullptr, s("Allow guest with duplicate name '%1'?").arg(name));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QVERIFY2(dialog.height() < 500, qPrintable(QString::number(dialog.height())));
        QVERIFY2(dialog.width() < 1000, qPrintable(QString::number(dialog.width())));
        const auto *message = dialog.findChild<QLabel *>(s("m_message"));
        const QRect text =
            message->fontMetrics().boundingRect(message->rect(), Qt::TextWordWrap, message->text());
        QVERIFY(message->rect().contains(text));
    }

    void untickingAndPressingAnyButtonTurnsTheWarningOff_data()
    {
        QTest::addColumn<QKeySequence>("keys");
        QTest::addColumn<int>("result");
        QTest::newRow("first button") << QKeySequence(Qt::ALT | Qt::Key_Y) << 0;
        QTest::newRow("second button") << QKeySequence(Qt::ALT | Qt::Key_N) << 1;
        QTest::newRow("Esc") << QKeySequence(Qt::Key_Escape) << 1;
    }

    void untickingAndPressingAnyButtonTurnsTheWarningOff()
    {
        QFETCH(QKeySequence, keys);
        QFETCH(int, result);
        const int answer = warn([&keys](Dialog &dialog) {
            QTest::keyClick(&dialog, Qt::Key_S, Qt::AltModifier);
            QVERIFY(!dialog.showWarning());
            QTest::keySequence(&dialog, keys);
        });
        QCOMPARE(answer, result);
        KWUserSettings settings;
        QVERIFY(!settings.warningDeleteGuest());
        QVERIFY(settings.warningDeleteTable());
        QCOMPARE(configurableWarning(&settings, key, s("Really?")), 0);
    }

    void theArrowIsUpAlsoInABusyStretch()
    {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        warn([](Dialog &dialog) {
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
            dialog.button1Pressed();
        });
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QApplication::restoreOverrideCursor();
    }

    void theDialogStandsOverTheMainWindow()
    {
        FakeMainWindow window;
        warn([&window](Dialog &dialog) {
            QCOMPARE(dialog.parent(), window.widget());
            dialog.button1Pressed();
        });
    }

    void shortLinesStandAsWrittenAndLongOnesWrap()
    {
        const auto heightOf = [](const QString &text) {
            Dialog dialog(nullptr, text);
            dialog.show();
            return dialog.findChild<QLabel *>(s("m_message"))->height();
        };
        const QFontMetrics metrics{QApplication::font()};
        const QString question = s("The automatic layout may re-assign unlocked guests.\n"
                                   "Do you wish to continue with the automatic layout?");
        QVERIFY(heightOf(question) < 3 * metrics.lineSpacing());
        const QString words = s("word ").repeated(80);
        QVERIFY(heightOf(words) > 3 * metrics.lineSpacing());
    }

    void theMessageCannotBeCut()
    {
        Dialog dialog(nullptr, s("word ").repeated(200));
        const auto *message = dialog.findChild<QLabel *>(s("m_message"));
        const auto fitsInSmallestWindow = [&] {
            dialog.resize(1, 1);
            return message->height() >= message->heightForWidth(message->width());
        };
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QVERIFY(fitsInSmallestWindow());
        QFont font = dialog.font();
        font.setPointSizeF(1.5 * font.pointSizeF());
        dialog.setFont(font);
        QTRY_VERIFY(fitsInSmallestWindow());
    }
};

REGISTER_TEST(TestKWConfigurableWarning)
#include "tst_kwconfigurablewarning.moc"
