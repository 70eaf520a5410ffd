#include "gui/framework/kwbusy.h"
#include "gui/framework/kwprompts.h"
#include "support/gui/guitest.h"
#include "support/gui/modaluser.h"
#include "support/gui/scriptedprompts.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QWidget>

namespace {

/// The buttons of a dialog as they stand from left to right.
QStringList buttonsInSight(const QWidget &dialog)
{
    QMap<int, QString> byPlace;
    for (const QPushButton *button : dialog.findChildren<QPushButton *>()) {
        if (button->isVisible())
            byPlace.insert(button->mapTo(&dialog, QPoint()).x(), button->text());
    }
    return byPlace.values();
}

KWMessage message(const QStringList &buttons, int defaultButton = 0)
{
    return {KWMessage::Warning, s("Ambrelune"), s("<b>Really?</b>"), buttons, defaultButton};
}

int ask(const KWMessage &question, const std::function<void(QMessageBox &)> &act)
{
    ModalUser user;
    user.onDialog<QMessageBox>(act);
    return KWPrompts().showMessage(nullptr, question);
}

KWFileAnswer ask(const KWFileQuestion &question, const std::function<void(QFileDialog &)> &act)
{
    ModalUser user;
    user.onDialog<QFileDialog>(act);
    return KWPrompts().askFile(nullptr, question);
}

void typeName(QFileDialog &dialog, const QString &name)
{
    auto *edit = dialog.findChild<QLineEdit *>(s("fileNameEdit"));
    edit->setText(name);
    QTest::keyClick(edit, Qt::Key_Return);
}

KWFileQuestion saveQuestion(const QString &start)
{
    return {KWFileQuestion::Save, s("Save plan"), start, s("Plan (*.kw);;Backup (*.kwb)"),
            s("save dialog")};
}
} // namespace

class TestKWPrompts : public QObject
{
    Q_OBJECT

private slots:
    void theButtonsOfAMessageStandInTheOrderGiven()
    {
        const QStringList buttons{s("&Yes"), s("&No"), s("&Cancel")};
        for (int i = 0; i < 3; ++i) {
            const int answer = ask(message(buttons), [&](QMessageBox &box) {
                QCOMPARE(buttonsInSight(box), buttons);
                const QList<QAbstractButton *> all = box.buttons();
                const auto wanted = std::find_if(all.begin(), all.end(), [&](auto *button) {
                    return button->text() == buttons.at(i);
                });
                QTest::mouseClick(*wanted, Qt::LeftButton);
            });
            QCOMPARE(answer, i);
        }
    }

    void aMessageIsShownAsItIs()
    {
        ask(message({s("&OK")}), [](QMessageBox &box) {
            QCOMPARE(box.windowTitle(), s("Ambrelune"));
            QCOMPARE(box.text(), s("<b>Really?</b>"));
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QCOMPARE(box.icon(), QMessageBox::Warning);
            QTest::keyClick(&box, Qt::Key_Return);
        });
        KWMessage failure = message({s("&OK")});
        failure.icon = KWMessage::Critical;
        ask(failure, [](QMessageBox &box) {
            QCOMPARE(box.icon(), QMessageBox::Critical);
            QTest::keyClick(&box, Qt::Key_Return);
        });
    }

    void returnPressesTheDefaultButton()
    {
        const auto pressReturn = [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Return); };
        QCOMPARE(ask(message({s("&Yes"), s("&No")}), pressReturn), 0);
        QCOMPARE(ask(message({s("&Yes"), s("&No")}, 1), pressReturn), 1);
    }

    void escIsIgnoredWhereThereAreTwoButtons()
    {
        const int answer = ask(message({s("&Yes"), s("&No")}), [](QMessageBox &box) {
            QTest::keyClick(&box, Qt::Key_Escape);
            QVERIFY(box.isVisible());
            box.close();
            QVERIFY(box.isVisible());
            QTest::keyClick(&box, Qt::Key_N, Qt::AltModifier);
        });
        QCOMPARE(answer, 1);
    }

    void escClosesAMessageWithOneButton()
    {
        QCOMPARE(ask(message({s("&OK")}),
                     [](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); }),
                 0);
    }

    void aMessageTakenDownWithoutAButtonGivesNone()
    {
        QCOMPARE(ask(message({s("&Yes"), s("&No")}), [](QMessageBox &box) { box.done(0); }), -1);
    }

    void anExistingFileIsOpened()
    {
        const QString path = testHome().path(s("party.kwb"));
        QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        const KWFileQuestion question{KWFileQuestion::Open, s("Open plan"), testHome().path({}),
                                      s("Plan (*.kw);;Backup (*.kwb)"), s("open dialog")};
        const KWFileAnswer answer = ask(question, [](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), s("Open plan"));
            QCOMPARE(dialog.objectName(), s("open dialog"));
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
            QCOMPARE(dialog.fileMode(), QFileDialog::ExistingFile);
            QCOMPARE(dialog.nameFilters(), (QStringList{s("Plan (*.kw)"), s("Backup (*.kwb)")}));
            QCOMPARE(dialog.directory(), QDir(testHome().path({})));
            dialog.selectNameFilter(s("Backup (*.kwb)"));
            typeName(dialog, s("party.kwb"));
        });
        QCOMPARE(answer.path, path);
        QCOMPARE(answer.filter, s("Backup (*.kwb)"));
    }

    void aFileToSaveIsSuggestedAndMayExist()
    {
        const QString path = testHome().path(s("dinner.kw"));
        QVERIFY(QFile(path).open(QIODevice::WriteOnly));
        const KWFileAnswer answer = ask(saveQuestion(path), [](QFileDialog &dialog) {
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
            auto *edit = dialog.findChild<QLineEdit *>(s("fileNameEdit"));
            QCOMPARE(edit->text(), s("dinner.kw"));
            QTest::keyClick(edit, Qt::Key_Return);
        });
        QCOMPARE(answer.path, path);
        QCOMPARE(answer.filter, s("Plan (*.kw)"));
    }

    void aNewNameIsTakenAsTyped()
    {
        const KWFileAnswer answer = ask(saveQuestion(testHome().path({})), [](QFileDialog &dialog) {
            typeName(dialog, s("new plan"));
        });
        QCOMPARE(answer.path, testHome().path(s("new plan")));
    }

    void aNameWithQuotesIsTakenAsItStands()
    {
        const QString name = s("Ann \"Bee\" wedding.kw");
        KWFileAnswer answer = ask(saveQuestion(testHome().path({})),
                                  [&](QFileDialog &dialog) { typeName(dialog, name); });
        QCOMPARE(answer.path, testHome().path(name));
        answer = ask(saveQuestion(testHome().path(name)), [](QFileDialog &dialog) {
            QTest::keyClick(dialog.findChild<QLineEdit *>(s("fileNameEdit")), Qt::Key_Return);
        });
        QCOMPARE(answer.path, testHome().path(name));
    }

    void theArrowIsUpOverADialogInABusyStretch()
    {
        const KWBusy busy;
        ask(saveQuestion(testHome().path({})), [](QFileDialog &dialog) {
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::ArrowCursor);
            dialog.reject();
        });
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }

    void aLongPathInAMessageMayBreak()
    {
        KWMessage question = message({s("&OK")});
        question.text = s("Unable to open file '/%1'").arg(QString(240, u'a'));
        ask(question, [&](QMessageBox &box) {
            QCOMPARE(box.text().remove(QChar(0x200b)), question.text);
            QVERIFY2(box.width() < 700, qPrintable(QString::number(box.width())));
            QTest::keyClick(&box, Qt::Key_Return);
        });
    }

    void aCopiedMessageHasThePathAsItIs()
    {
        KWMessage question = message({s("&OK")});
        question.text = s("Unable to open file '/%1'").arg(QString(240, u'a'));
        ask(question, [&](QMessageBox &box) {
            QTest::keySequence(&box, QKeySequence::Copy);
            QTest::keyClick(&box, Qt::Key_Return);
        });
        QCOMPARE(QGuiApplication::clipboard()->text(), question.text);
    }

    void aNameOfAnyLengthLeavesTheButtonsOnTheScreen_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("one word") << QString(6000, u'w');
        QTest::newRow("many words") << s("word ").repeated(1000);
        QTest::newRow("many lines") << s("line\n").repeated(1000);
    }

    void aNameOfAnyLengthLeavesTheButtonsOnTheScreen()
    {
        QFETCH(QString, name);
        KWMessage question = message({s("OK"), s("Cancel")});
        question.text = s("Delete theme '%1'?").arg(name);
        ask(question, [](QMessageBox &box) {
            QVERIFY2(box.height() < 500, qPrintable(QString::number(box.height())));
            QVERIFY2(box.width() < 800, qPrintable(QString::number(box.width())));
            QTest::keyClick(&box, Qt::Key_Return);
        });
    }

    void aFileDialogCancelledGivesNoPath()
    {
        const KWFileAnswer answer =
            ask(saveQuestion(testHome().path(s("dinner.kw"))),
                [](QFileDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QCOMPARE(answer.path, QString());
    }

    void aFontIsChosenOrNot()
    {
        const QFont start(QApplication::font().family(), 17);
        for (const bool accept : {true, false}) {
            ModalUser user;
            user.onDialog<QFontDialog>([accept](QFontDialog &dialog) {
                QCOMPARE(dialog.currentFont().pointSize(), 17);
                QFont larger = dialog.currentFont();
                larger.setPointSize(23);
                dialog.setCurrentFont(larger);
                accept ? dialog.accept() : dialog.reject();
            });
            const std::optional<QFont> font = KWPrompts().askFont(nullptr, start);
            QCOMPARE(font.has_value(), accept);
            if (accept)
                QCOMPARE(font->pointSize(), 23);
        }
    }

    void aColourIsChosenOrNot()
    {
        for (const bool accept : {true, false}) {
            ModalUser user;
            user.onDialog<QColorDialog>([accept](QColorDialog &dialog) {
                QCOMPARE(dialog.currentColor(), QColor(Qt::green));
                dialog.setCurrentColor(Qt::blue);
                accept ? dialog.accept() : dialog.reject();
            });
            const std::optional<QColor> colour = KWPrompts().askColour(nullptr, Qt::green);
            QCOMPARE(colour.has_value(), accept);
            if (accept)
                QCOMPARE(*colour, QColor(Qt::blue));
        }
    }

    void aPrinterIsChosenOrNot()
    {
        for (const bool accept : {true, false}) {
            QPrinter printer;
            printer.setOutputFileName(testHome().path(s("out.pdf")));
            ModalUser user;
            user.onDialog<QPrintDialog>(
                [accept](QPrintDialog &dialog) { accept ? dialog.accept() : dialog.reject(); });
            QCOMPARE(KWPrompts().askPrinter(nullptr, printer), accept);
        }
    }

    void aReplacementAnswersUntilItIsTakenBack()
    {
        KWPrompts &real = prompts();
        {
            ScriptedPrompts user;
            QCOMPARE(&prompts(), &user);
        }
        QCOMPARE(&prompts(), &real);
    }
};

REGISTER_TEST(TestKWPrompts)
#include "tst_kwprompts.moc"
