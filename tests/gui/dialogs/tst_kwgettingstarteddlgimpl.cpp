#include "gui/dialogs/kwgettingstarteddlgimpl.h"
#include "gui/framework/kwusersettings.h"
#include "support/gui/dialogtest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

/// The parts of the dialog that the tests work with.
struct Dialog : KWGettingStartedDlgImpl
{
    explicit Dialog(KWUserSettings &settings)
        : KWGettingStartedDlgImpl(nullptr, &settings)
    {
    }

    QCheckBox *showNextTime = child<QCheckBox>(*this, "m_showNextTimeCheckBox");
    QPushButton *quickStartButton = child<QPushButton>(*this, "m_quickStartButton");
    QPushButton *tutorialButton = child<QPushButton>(*this, "m_tutorialButton");
    QPushButton *continueButton = child<QPushButton>(*this, "m_continueButton");
    QLabel *text = child<QLabel>(*this, "m_textLabel");
};

/// A language in which everything takes twice the words.
struct WordyTranslator : BracketTranslator
{
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QString::fromUtf8(text).repeated(2);
    }
};
} // namespace

class TestKWGettingStartedDlgImpl : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestHome::clearSettings(); }

    void eachWidgetHasItsTexts_data()
    {
        addFormRows({
            {"m_showNextTimeCheckBox", "&show this message next time",
             "Leaved checked to show this message next time you re-start the application", "Alt+S"},
            {"m_quickStartButton", "&Quick start", "Close window and show the quick start guide",
             "Alt+Q"},
            {"m_tutorialButton", "&Tutorial", "Close window and show the tutorial", "Alt+T"},
            {"m_continueButton", "&Continue", "Close window", "Alt+C"},
        });
    }

    void eachWidgetHasItsTexts()
    {
        KWUserSettings settings;
        compareFormRow(Dialog(settings));
    }

    void theTextTellsOfTheFiveStepsAndTheTutorial()
    {
        KWUserSettings settings;
        const Dialog dialog(settings);
        QCOMPARE(dialog.windowTitle(), s("Getting started"));
        const QString text = child<QLabel>(dialog, "m_textLabel")->text();
        for (const char *words : {"quick start", "five steps", "tutorial"})
            QVERIFY2(text.contains(s(words)), words);
    }

    void theTextCannotBeCut()
    {
        KWUserSettings settings;
        Dialog dialog(settings);
        const auto fitsInSmallestWindow = [&] {
            dialog.resize(1, 1);
            return dialog.text->height() >= dialog.text->heightForWidth(dialog.text->width());
        };
        QVERIFY(showActive(dialog));
        QVERIFY(fitsInSmallestWindow());
        QFont font = dialog.font();
        font.setPointSizeF(1.5 * font.pointSizeF());
        dialog.setFont(font);
        QTRY_VERIFY(fitsInSmallestWindow());
        const WordyTranslator translator;
        QTRY_VERIFY(dialog.text->text().count(s("<h3>")) == 2 && fitsInSmallestWindow());
    }

    void theCheckBoxStandsForItsKey()
    {
        KWUserSettings settings;
        QVERIFY(Dialog(settings).showNextTime->isChecked());
        settings.setHelpShowGettingStarted(false);
        QVERIFY(!Dialog(settings).showNextTime->isChecked());
    }

    void theButtonsHideTheDialogAndShowTheirTopic_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("topic");
        QTest::newRow("quick start") << s("m_quickStartButton") << s("Quick_start_guide.htm");
        QTest::newRow("tutorial") << s("m_tutorialButton") << s("Tutorial.htm");
    }

    void theButtonsHideTheDialogAndShowTheirTopic()
    {
        QFETCH(QString, button);
        QFETCH(QString, topic);
        KWUserSettings settings;
        Dialog dialog(settings);
        dialog.showNextTime->setChecked(false);
        QTimer::singleShot(0, &dialog, [&] {
            QCOMPARE(topicAskedFor([&] {
                         QTest::mouseClick(child<QPushButton>(dialog, button), Qt::LeftButton);
                     }),
                     topic);
        });
        dialog.exec();
        QVERIFY(!dialog.isVisible());
        QVERIFY(!settings.helpShowGettingStarted());
    }

    void theDialogIsGoneWhenTheTopicIsShown()
    {
        struct Prompts : ScriptedPrompts
        {
            int showMessage(QWidget *parent, const KWMessage &message) override
            {
                hiddenAtMessage = !dialog->isVisible();
                return ScriptedPrompts::showMessage(parent, message);
            }
            QDialog *dialog = nullptr;
            bool hiddenAtMessage = false;
        } prompts;
        breakHelpFile();
        KWUserSettings settings;
        Dialog dialog(settings);
        prompts.dialog = &dialog;
        prompts.answer(s("&OK"));
        QVERIFY(showActive(dialog));
        QTest::mouseClick(dialog.tutorialButton, Qt::LeftButton);
        QCOMPARE(prompts.messages.size(), 1);
        QVERIFY(prompts.hiddenAtMessage);
    }

    void theCheckBoxIsWrittenOnEveryWayOfClosing_data()
    {
        using Close = std::function<void(Dialog &)>;
        QTest::addColumn<Close>("close");
        const auto row = [](const char *name, const Close &close) { QTest::newRow(name) << close; };
        row("Continue",
            [](Dialog &dialog) { QTest::mouseClick(dialog.continueButton, Qt::LeftButton); });
        row("Enter", [](Dialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        row("Esc", [](Dialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        row("close box", [](Dialog &dialog) { dialog.close(); });
    }

    void theCheckBoxIsWrittenOnEveryWayOfClosing()
    {
        QFETCH(std::function<void(Dialog &)>, close);
        KWUserSettings settings;
        for (const bool on : {false, true}) {
            Dialog dialog(settings);
            QVERIFY(showActive(dialog));
            dialog.showNextTime->setChecked(on);
            QCOMPARE(settings.helpShowGettingStarted(), !on);
            close(dialog);
            QVERIFY(!dialog.isVisible());
            QCOMPARE(settings.helpShowGettingStarted(), on);
        }
    }

    void f1AsksForTheQuickStartAndTheDialogStays()
    {
        KWUserSettings settings;
        Dialog dialog(settings);
        QVERIFY(showActive(dialog));
        QCOMPARE(topicAskedFor([&] { QTest::keyClick(&dialog, Qt::Key_F1); }),
                 s("Quick_start_guide.htm"));
        QVERIFY(dialog.isVisible());
    }

    void aNewLanguageTranslatesTheForm()
    {
        KWUserSettings settings;
        const Dialog dialog(settings);
        const BracketTranslator translator;
        QTRY_COMPARE(dialog.windowTitle(), s("[Getting started]"));
        QCOMPARE(dialog.tutorialButton->text(), s("[&Tutorial]"));
        QTRY_COMPARE(dialog.continueButton->whatsThis(), s("[Close window]"));
    }
};

REGISTER_TEST(TestKWGettingStartedDlgImpl)
#include "tst_kwgettingstarteddlgimpl.moc"
