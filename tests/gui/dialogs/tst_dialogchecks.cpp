#include "support/gui/dialogchecks.h"
#include "support/gui/dialogtest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

using namespace DialogChecks;

// The checks of tst_dialogs must find what they are for.

namespace {

template <typename Widget>
Widget *named(Widget *widget, const char *name)
{
    widget->setObjectName(s(name));
    return widget;
}
} // namespace

class TestDialogChecks : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_dialog = std::make_unique<QDialog>();
        m_dialog->resize(400, 300);
    }

    void cleanup() { m_dialog.reset(); }

    void aMnemonicWithoutABuddyAndAFieldWithoutANameAreFound()
    {
        named(new QLabel(s("&Name:"), m_dialog.get()), "label");
        named(new QLineEdit(m_dialog.get()), "edit");
        named(new QSpinBox(m_dialog.get()), "spin")->setAccessibleName(s("Number"));
        QVERIFY(showActive(*m_dialog));
        QCOMPARE(unnamedFields(m_dialog.get()),
                 (QStringList{s("leads nowhere: label"), s("has no name: edit")}));
        child<QLabel>(*m_dialog, "label")->setBuddy(child<QLineEdit>(*m_dialog, "edit"));
        QCOMPARE(unnamedFields(m_dialog.get()), QStringList());
    }

    void theTitleOfAGroupNamesItsOnlyField()
    {
        auto *group = new QGroupBox(s("Notes"), m_dialog.get());
        named(new QTextEdit(group), "notes");
        QVERIFY(showActive(*m_dialog));
        QCOMPARE(unnamedFields(m_dialog.get()), QStringList());
        named(new QComboBox(group), "kind")->show();
        QCOMPARE(unnamedFields(m_dialog.get()),
                 (QStringList{s("has no name: notes"), s("has no name: kind")}));
    }

    void tabsThatGoUpOrLeftAreFound()
    {
        named(new QPushButton(m_dialog.get()), "low")->setGeometry(0, 100, 50, 20);
        named(new QPushButton(m_dialog.get()), "right")->setGeometry(100, 0, 50, 20);
        named(new QPushButton(m_dialog.get()), "left")->setGeometry(0, 5, 50, 20);
        QVERIFY(showActive(*m_dialog));
        QCOMPARE(backwardTabs(m_dialog.get()),
                 (QStringList{s("low -> right"), s("right -> left")}));
    }

    void tabsThatLeaveAGroupAndComeBackAreFound()
    {
        auto *group = named(new QGroupBox(m_dialog.get()), "group");
        group->setGeometry(0, 0, 100, 100);
        named(new QLineEdit(group), "first")->setGeometry(0, 0, 50, 20);
        named(new QLineEdit(m_dialog.get()), "outside")->setGeometry(0, 150, 50, 20);
        named(new QLineEdit(group), "second")->setGeometry(0, 50, 50, 20);
        QVERIFY(showActive(*m_dialog));
        QCOMPARE(backwardTabs(m_dialog.get()), QStringList{s("outside -> second")});
    }

    void mnemonicsThatClashAreFound()
    {
        named(new QPushButton(s("&Cancel"), m_dialog.get()), "cancel");
        named(new QCheckBox(s("&copy"), m_dialog.get()), "copy");
        named(new QGroupBox(s("&Charts"), m_dialog.get()), "charts");
        named(new QPushButton(s("&Close"), m_dialog.get()), "disabled")->setEnabled(false);
        named(new QPushButton(s("Now && &then"), m_dialog.get()), "then");
        auto *tabs = new QTabWidget(m_dialog.get());
        tabs->addTab(new QWidget, s("&Tables"));
        QVERIFY(showActive(*m_dialog));
        QCOMPARE(
            mnemonicClashes(m_dialog.get()),
            (QStringList{s("Alt+C: cancel, charts, copy"), s("Alt+T: qt_tabwidget_tabbar, then")}));
    }

    void textsThatAreCutAreFound()
    {
        const auto place = [](QWidget *widget) { widget->setGeometry(0, 0, 12, 12); };
        place(named(new QPushButton(s("Cancel"), m_dialog.get()), "button"));
        place(named(new QLabel(s("Cancel"), m_dialog.get()), "label"));
        place(named(new QLabel(s("many words"), m_dialog.get()), "wrapped"));
        place(named(new QGroupBox(s("A long title"), m_dialog.get()), "group"));
        place(named(new QSpinBox(m_dialog.get()), "spin"));
        auto *total = named(new QLineEdit(s("123456789"), m_dialog.get()), "total");
        place(total);
        total->setReadOnly(true);
        child<QLabel>(*m_dialog, "wrapped")->setWordWrap(true);
        QVERIFY(showActive(*m_dialog));
        QStringList names;
        for (const QString &fault : cutTexts(m_dialog.get()))
            names.append(fault.section(u' ', 0, 0));
        QCOMPARE(names.join(u' '), s("button label wrapped group spin total"));
    }

    void whatSticksOutIsFound()
    {
        auto *group = named(new QGroupBox(m_dialog.get()), "group");
        group->setGeometry(10, 10, 100, 100);
        named(new QLabel(group), "inside")->setGeometry(0, 0, 100, 100);
        named(new QLabel(group), "outside")->setGeometry(50, 50, 51, 10);
        QVERIFY(showActive(*m_dialog));
        QCOMPARE(strayWidgets(m_dialog.get()), QStringList{s("sticks out: outside")});
    }

    void labelsOutOfLineAreFound()
    {
        auto *grid = new QGridLayout(m_dialog.get());
        grid->addWidget(named(new QLabel(s("Short:")), "short"), 0, 0, Qt::AlignRight);
        grid->addWidget(named(new QLabel(s("Much longer:")), "long"), 1, 0, Qt::AlignHCenter);
        grid->addWidget(named(new QLabel(s("Longest of the three:")), "longest"), 2, 0);
        for (int row = 0; row < 3; ++row)
            grid->addWidget(new QLineEdit, row, 1);
        QVERIFY(showActive(*m_dialog));
        QCOMPARE(raggedColumns(m_dialog.get()),
                 QStringList{s("not in line: short, long, longest")});
    }

    void eachPageIsChecked()
    {
        auto *tabs = new QTabWidget(m_dialog.get());
        for (const char *name : {"one", "two"}) {
            auto *page = new QWidget;
            named(new QLineEdit(page), name);
            tabs->addTab(page, s(name));
        }
        QVERIFY(showActive(*m_dialog));
        QCOMPARE(onEachPage(m_dialog.get(), unnamedFields),
                 (QStringList{s("has no name: one"), s("has no name: two")}));
    }

private:
    std::unique_ptr<QDialog> m_dialog;
};

REGISTER_TEST(TestDialogChecks)
#include "tst_dialogchecks.moc"
