#include "gui/appearance/kwstylehelper.h"
#include "gui/framework/kwcolourbutton.h"
#include "gui/framework/kwhelpdialog.h"
#include "support/gui/dialogtest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

namespace {

class Dialog : public KWHelpDialog
{
public:
    explicit Dialog(const QString &topic = {})
    {
        auto *rows = new QVBoxLayout(this);
        for (QWidget *part : std::initializer_list<QWidget *>{box, one, other, label, colour, field,
                                                              number, shown, button})
            rows->addWidget(part);
        box->setToolTip(s("A box"));
        label->setBuddy(colour);
        one->setChecked(true);
        shown->setReadOnly(true);
        finish(topic, button);
    }

    QCheckBox *box = new QCheckBox(s("&box"));
    QRadioButton *one = new QRadioButton(s("&one"));
    QRadioButton *other = new QRadioButton(s("o&ther"));
    QLabel *label = new QLabel(s("&Colour:"));
    KWColourButton *colour = new KWColourButton;
    QLineEdit *field = new QLineEdit;
    QSpinBox *number = new QSpinBox;
    QLineEdit *shown = new QLineEdit;
    QPushButton *button = new QPushButton(s("&Help"));
    int translated = 0;

    void languageChange() override { ++translated; }
};

void pressAlt(QWidget &window, Qt::Key key)
{
    QTest::keyClick(&window, key, Qt::AltModifier);
}
} // namespace

class TestKWDialog : public QObject
{
    Q_OBJECT

private slots:
    void aBoxChangesAtOnceByItsLetterAndHasTheFocus()
    {
        Dialog dialog;
        QVERIFY(showActive(dialog));
        const QSignalSpy clicked(dialog.box, &QCheckBox::clicked);
        pressAlt(dialog, Qt::Key_B);
        QVERIFY(dialog.box->isChecked());
        QVERIFY(dialog.box->hasFocus());
        QVERIFY(!dialog.box->isDown());
        QCOMPARE(clicked.size(), 1);
        pressAlt(dialog, Qt::Key_B);
        QVERIFY(!dialog.box->isChecked());
        pressAlt(dialog, Qt::Key_T);
        QVERIFY(dialog.other->isChecked());
    }

    void aLetterThatTwoBoxesHaveOnlyMovesTheFocus()
    {
        Dialog dialog;
        dialog.other->setText(s("&box"));
        QVERIFY(showActive(dialog));
        pressAlt(dialog, Qt::Key_B);
        QVERIFY(!dialog.box->isChecked());
        QVERIFY(!dialog.other->isChecked());
        QVERIFY(dialog.box->hasFocus() || dialog.other->hasFocus());
    }

    void aLabelLeadsToWhatTakesTheFocus()
    {
        Dialog dialog;
        QVERIFY(showActive(dialog));
        QVERIFY(!dialog.label->buddy()->focusProxy());
        QVERIFY(dialog.label->buddy()->focusPolicy() != Qt::NoFocus);
        pressAlt(dialog, Qt::Key_C);
        QVERIFY(dialog.label->buddy()->hasFocus());
        QVERIFY(dialog.colour->isAncestorOf(dialog.label->buddy()));
    }

    void aFieldStaysOneLineAndANumberANumber()
    {
        const Dialog dialog;
        QApplication::clipboard()->setText(s("a\nb"));
        dialog.field->paste();
        QCOMPARE(dialog.field->text(), s("a b"));
        QVERIFY(!dialog.shown->validator());
        QTest::keyClicks(dialog.number, s("x7"));
        QCOMPARE(dialog.number->value(), 7);
    }

    void theHelpButtonAndF1ShowThePage()
    {
        Dialog dialog(s("Tutorial.htm"));
        QVERIFY(showActive(dialog));
        QCOMPARE(topicAskedFor([&] { dialog.button->click(); }), s("Tutorial.htm"));
        QCOMPARE(topicAskedFor([&] { QTest::keyClick(&dialog, Qt::Key_F1); }), s("Tutorial.htm"));
    }

    void withoutAPageF1DoesNothing()
    {
        Dialog dialog;
        QVERIFY(showActive(dialog));
        QCOMPARE(
            topicAskedFor([&] {
                QTest::keyClick(&dialog, Qt::Key_F1);
                prompts().showMessage(nullptr, {KWMessage::Warning, {}, s("'none'"), {s("&OK")}});
            }),
            s("none"));
    }

    void theHelpersAreThere()
    {
        const Dialog dialog;
        QCOMPARE(dialog.box->whatsThis(), s("A box"));
        QVERIFY(dialog.findChild<KWStyleHelper *>());
    }

    void aNewLanguageIsToldOnce()
    {
        Dialog dialog;
        const BracketTranslator translator;
        QTRY_COMPARE(dialog.translated, 1);
    }
};

REGISTER_TEST(TestKWDialog)
#include "tst_kwdialog.moc"
