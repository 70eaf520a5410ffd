#include "gui/appearance/kwstylehelper.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"

#include <QtWidgets>

using namespace Qt::StringLiterals;

class tst_KWStyleHelper : public QObject
{
    Q_OBJECT

private slots:
    void isANamedChildOfTheDialog();
    void reversesTheButtonsBesideTheDefaultButton();
    void leavesTheButtonsOfOtherLayoutsAlone();
    void findsTheDefaultButtonInNestedLayouts();
    void putsTheButtonsBehindTheOtherItems();
    void changesNothingWithoutADefaultButton();
    void lateDefaultButtonCounts();
    void emptyLayoutHasNoDefaultButton();
};

namespace {

QPushButton *add(QLayout *layout, const QString &text, bool isDefault = false)
{
    auto *button = new QPushButton(text);
    layout->addWidget(button);
    button->setDefault(isDefault);
    return button;
}

/// The texts of the buttons of a layout in order, "-" for a spacer, "layout" for a nested one.
QStringList items(const QLayout *layout)
{
    QStringList result;
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem *item = layout->itemAt(i);
        if (const auto *button = qobject_cast<QAbstractButton *>(item->widget()))
            result += button->text();
        else
            result += item->layout() ? u"layout"_s : u"-"_s;
    }
    return result;
}

} // namespace

void tst_KWStyleHelper::isANamedChildOfTheDialog()
{
    QDialog dialog;
    auto *helper = new KWStyleHelper(&dialog);
    QCOMPARE(helper->parent(), &dialog);
    QCOMPARE(helper->objectName(), u"KWStyleHelper"_s);
}

void tst_KWStyleHelper::reversesTheButtonsBesideTheDefaultButton()
{
    QDialog dialog;
    auto *row = new QHBoxLayout(&dialog);
    add(row, u"OK"_s, true);
    add(row, u"Cancel"_s);
    add(row, u"Help"_s);
    KWStyleHelper helper(&dialog);
    QVERIFY(helper.arrangeButtons(row));
    QCOMPARE(items(row), (QStringList{u"Help"_s, u"Cancel"_s, u"OK"_s}));
    QVERIFY(helper.arrangeButtons(row));
    QCOMPARE(items(row), (QStringList{u"OK"_s, u"Cancel"_s, u"Help"_s}));
}

void tst_KWStyleHelper::leavesTheButtonsOfOtherLayoutsAlone()
{
    QDialog dialog;
    auto *column = new QVBoxLayout(&dialog);
    auto *above = new QHBoxLayout;
    auto *below = new QHBoxLayout;
    column->addLayout(above);
    column->addLayout(below);
    add(above, u"Add"_s);
    add(above, u"Remove"_s);
    add(below, u"OK"_s, true);
    add(below, u"Cancel"_s);
    QVERIFY(KWStyleHelper(&dialog).arrangeButtons(column));
    QCOMPARE(items(column), (QStringList{u"layout"_s, u"layout"_s}));
    QCOMPARE(items(above), (QStringList{u"Add"_s, u"Remove"_s}));
    QCOMPARE(items(below), (QStringList{u"Cancel"_s, u"OK"_s}));
}

void tst_KWStyleHelper::findsTheDefaultButtonInNestedLayouts()
{
    QDialog dialog;
    auto *grid = new QGridLayout(&dialog);
    auto *column = new QVBoxLayout;
    auto *row = new QHBoxLayout;
    grid->addWidget(new QPushButton(u"Browse"_s), 0, 0);
    grid->addLayout(column, 1, 0);
    column->addWidget(new QLabel);
    column->addLayout(row);
    add(row, u"OK"_s);
    add(row, u"Cancel"_s, true);
    QVERIFY(KWStyleHelper(&dialog).arrangeButtons(grid));
    QCOMPARE(items(row), (QStringList{u"Cancel"_s, u"OK"_s}));
}

void tst_KWStyleHelper::putsTheButtonsBehindTheOtherItems()
{
    QDialog dialog;
    auto *row = new QHBoxLayout(&dialog);
    add(row, u"Help"_s);
    row->addStretch();
    row->addWidget(new QCheckBox(u"Again"_s));
    add(row, u"OK"_s, true);
    row->addSpacing(6);
    add(row, u"Cancel"_s);
    QVERIFY(KWStyleHelper(&dialog).arrangeButtons(row));
    QCOMPARE(items(row),
             (QStringList{u"-"_s, u"Again"_s, u"-"_s, u"Cancel"_s, u"OK"_s, u"Help"_s}));
}

void tst_KWStyleHelper::changesNothingWithoutADefaultButton()
{
    QDialog dialog;
    auto *row = new QHBoxLayout(&dialog);
    auto *nested = new QHBoxLayout;
    add(row, u"OK"_s);
    add(row, u"Cancel"_s);
    row->addLayout(nested);
    add(nested, u"Help"_s);
    QVERIFY(!KWStyleHelper(&dialog).arrangeButtons(row));
    QCOMPARE(items(row), (QStringList{u"OK"_s, u"Cancel"_s, u"layout"_s}));
}

void tst_KWStyleHelper::lateDefaultButtonCounts()
{
    QDialog dialog;
    auto *row = new QHBoxLayout(&dialog);
    add(row, u"OK"_s, true);
    add(row, u"Cancel"_s)->setDefault(true);
    QVERIFY(KWStyleHelper(&dialog).arrangeButtons(row));
    QCOMPARE(items(row), (QStringList{u"Cancel"_s, u"OK"_s}));
}

void tst_KWStyleHelper::emptyLayoutHasNoDefaultButton()
{
    QDialog dialog;
    auto *row = new QHBoxLayout(&dialog);
    QVERIFY(!KWStyleHelper(&dialog).arrangeButtons(row));
}

REGISTER_TEST(tst_KWStyleHelper)
#include "tst_kwstylehelper.moc"
