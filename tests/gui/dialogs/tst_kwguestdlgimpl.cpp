#include "gui/appearance/kwpixmaps.h"
#include "support/gui/guestdialogtest.h"
#include "support/registeredtest.h"

// What the three openings of the dialog have in common and in what they differ.

namespace {

enum Opening { Insert, EditGuest, EditGroup };

/// Notes whether the busy cursor is up while the lists of titles are made.
class CursorWatch : public QTranslator
{
public:
    CursorWatch() { QCoreApplication::installTranslator(this); }
    ~CursorWatch() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        // What is said while the lists are filled, and behind that.
        if (QList<QByteArrayView>{"Master", "Insert guest", "Guest properties", "Group properties"}
                .contains(text))
            m_busy.append(QApplication::overrideCursor() &&
                          QApplication::overrideCursor()->shape() == Qt::WaitCursor);
        return {};
    }
    QList<bool> busy() const { return m_busy; }

private:
    mutable QList<bool> m_busy;
};
} // namespace

class TestKWGuestDlgImpl : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }

    void eachWidgetHasItsTexts_data();
    void eachWidgetHasItsTexts();
    void eachOpeningHasItsNameCaptionAndIcon_data();
    void eachOpeningHasItsNameCaptionAndIcon();
    void whatAnOpeningHasNoUseForIsGone_data();
    void whatAnOpeningHasNoUseForIsGone();
    void thePagesAreThereWithTheirTitles_data() { openingRows(); }
    void thePagesAreThereWithTheirTitles();
    void theFocusStartsInTheFirstField_data() { openingRows(); }
    void theFocusStartsInTheFirstField();
    void theDefaultButtonAddsOrAccepts_data() { openingRows(); }
    void theDefaultButtonAddsOrAccepts();
    void noRoomIsLeftForTheSeatOfANewGuest();
    void theFieldsStandInOneLineOverAllPages_data() { openingRows(); }
    void theFieldsStandInOneLineOverAllPages();
    void theBusyCursorIsUpWhileTheDialogIsMade();
    void theDialogIsNoHigherThanTheScreenHasRoomFor_data() { openingRows(); }
    void theDialogIsNoHigherThanTheScreenHasRoomFor();
    void onALowScreenTheNotesShrinkFirst();
    void onAVeryLowScreenThePagesScroll();
    void theHelpButtonAndF1AskForTheTopicOfTheOpening_data() { openingRows(); }
    void theHelpButtonAndF1AskForTheTopicOfTheOpening();
    void aNewLanguageTranslatesTheOpeningInUse_data() { openingRows(); }
    void aNewLanguageTranslatesTheOpeningInUse();

private:
    static void openingRows();
    std::unique_ptr<GuestDialog> open(int opening);

    std::unique_ptr<FakeMainWindow> m_window;
    KWGuest *m_ann = nullptr;
};

void TestKWGuestDlgImpl::init()
{
    m_window = std::make_unique<FakeMainWindow>();
    KWDocument &plan = *m_window->document();
    m_ann = addGuest(plan, {.name = "Ann"}, plan.addGroup({}, s("Smith"), {}));
    plan.assignGuest(m_ann, addTable(plan, "Top", KWTable::Circular, 8), 2, false);
}

void TestKWGuestDlgImpl::openingRows()
{
    QTest::addColumn<int>("opening");
    QTest::newRow("insert") << int(Insert);
    QTest::newRow("edit guest") << int(EditGuest);
    QTest::newRow("edit group") << int(EditGroup);
}

std::unique_ptr<GuestDialog> TestKWGuestDlgImpl::open(int opening)
{
    KWDocument *plan = m_window->document();
    if (opening == Insert)
        return std::make_unique<GuestDialog>(nullptr, plan);
    if (opening == EditGuest)
        return std::make_unique<GuestDialog>(nullptr, plan, m_ann);
    return std::make_unique<GuestDialog>(nullptr, plan, m_ann->group());
}

void TestKWGuestDlgImpl::eachWidgetHasItsTexts_data()
{
    addFormRows({
        {"m_assignedTextLabelLabel", "Assigned:", ""},
        {"m_assignedTextLabel", "Top, seat 3", "Table guest has been assigned to (if any)"},
        {"m_addPushButton", "&Add", "Add guest and close window", "Alt+A"},
        {"m_okPushButton", "&OK", "Accept changes and close window", "Alt+O"},
        {"m_cancelPushButton", "&Cancel", "Discard changes and close window", "Alt+C"},
        {"m_helpPushButton", "&Help", "Context sensitive help", "Alt+H"},
    });
}

void TestKWGuestDlgImpl::eachWidgetHasItsTexts()
{
    QFETCH(QString, name);
    compareFormRow(*open(name == s("m_addPushButton") ? Insert : EditGuest));
}

void TestKWGuestDlgImpl::eachOpeningHasItsNameCaptionAndIcon_data()
{
    QTest::addColumn<int>("opening");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QPixmap>("icon");
    const KWPixmaps &pixmaps = KWPixmaps::instance();
    QTest::newRow("insert") << int(Insert) << s("new guest dlg") << s("Insert guest")
                            << pixmaps.singleGuest();
    QTest::newRow("edit guest") << int(EditGuest) << s("edit guest dlg") << s("Guest properties")
                                << pixmaps.singleGuest();
    QTest::newRow("edit group") << int(EditGroup) << s("edit group dlg") << s("Group properties")
                                << pixmaps.friends();
}

void TestKWGuestDlgImpl::eachOpeningHasItsNameCaptionAndIcon()
{
    QFETCH(int, opening);
    QFETCH(QString, name);
    QFETCH(QString, caption);
    QFETCH(QPixmap, icon);
    const auto dialog = open(opening);
    QCOMPARE(dialog->objectName(), name);
    QCOMPARE(dialog->windowTitle(), caption);
    QVERIFY(dialog->isModal());
    QVERIFY(!icon.isNull());
    QCOMPARE(dialog->windowIcon().pixmap(16).toImage(), icon.toImage());
}

void TestKWGuestDlgImpl::whatAnOpeningHasNoUseForIsGone_data()
{
    QTest::addColumn<int>("opening");
    QTest::addColumn<QString>("gone");
    QTest::newRow("insert") << int(Insert)
                            << s("m_assignedTextLabelLabel m_assignedTextLabel m_lockedCheckBox "
                                 "m_okPushButton");
    QTest::newRow("edit guest") << int(EditGuest) << s("m_addPushButton");
    QTest::newRow("edit group") << int(EditGroup)
                                << s("m_assignedTextLabelLabel m_assignedTextLabel "
                                     "m_lockedCheckBox m_titleCombo m_guestWidget m_guestPage "
                                     "m_addPushButton");
}

void TestKWGuestDlgImpl::whatAnOpeningHasNoUseForIsGone()
{
    QFETCH(int, opening);
    QFETCH(QString, gone);
    const auto dialog = open(opening);
    QStringList missing;
    for (const char *name :
         {"m_assignedTextLabelLabel", "m_assignedTextLabel", "m_lockedCheckBox", "m_titleCombo",
          "m_guestWidget", "m_guestPage", "m_groupWidget", "m_contactWidget", "m_addPushButton",
          "m_okPushButton", "m_cancelPushButton", "m_helpPushButton"}) {
        if (!dialog->findChild<QWidget *>(s(name)))
            missing.append(s(name));
    }
    QCOMPARE(missing.join(u' '), gone);
}

void TestKWGuestDlgImpl::thePagesAreThereWithTheirTitles()
{
    QFETCH(int, opening);
    const auto dialog = open(opening);
    QStringList titles;
    for (int i = 0; i < dialog->tabs->count(); ++i) {
        titles.append(dialog->tabs->tabText(i));
        QVERIFY(dialog->tabs->isTabEnabled(i));
    }
    QStringList expected{s("&Guest"), s("G&roup"), s("Co&ntact")};
    if (opening == EditGroup)
        expected.removeFirst();
    QCOMPARE(titles, expected);
    QCOMPARE(dialog->tabs->currentIndex(), 0);
}

void TestKWGuestDlgImpl::theFocusStartsInTheFirstField()
{
    QFETCH(int, opening);
    const auto dialog = open(opening);
    QVERIFY(showActive(*dialog));
    QVERIFY(opening == EditGroup ? dialog->groupName->hasFocus() : dialog->ui.title->hasFocus());
}

void TestKWGuestDlgImpl::theDefaultButtonAddsOrAccepts()
{
    QFETCH(int, opening);
    const auto dialog = open(opening);
    const char *name = opening == Insert ? "m_addPushButton" : "m_okPushButton";
    QVERIFY(child<QPushButton>(*dialog, name)->isDefault());
}

void TestKWGuestDlgImpl::noRoomIsLeftForTheSeatOfANewGuest()
{
    const auto dialog = open(Insert);
    QVERIFY(showActive(*dialog));
    const auto *form = child<QWidget>(*dialog, "m_guestWidget");
    const QWidget *page = form->parentWidget();
    QCOMPARE(form->geometry(), page->layout()->contentsRect());
}

void TestKWGuestDlgImpl::theFieldsStandInOneLineOverAllPages()
{
    QFETCH(int, opening);
    const auto dialog = open(opening);
    QVERIFY(showActive(*dialog));
    QSet<int> places;
    for (int page = 0; page < dialog->tabs->count(); ++page) {
        dialog->tabs->setCurrentIndex(page);
        QCoreApplication::processEvents();
        for (const QLabel *label : dialog->findChildren<QLabel *>()) {
            if (label->buddy() && label->isVisible())
                places.insert(label->buddy()->mapTo(dialog.get(), QPoint()).x());
        }
    }
    QCOMPARE(places.size(), 1);
    if (opening == EditGuest) {
        dialog->tabs->setCurrentIndex(0);
        const auto *assigned = child<QLabel>(*dialog, "m_assignedTextLabel");
        QCOMPARE(assigned->mapTo(dialog.get(), QPoint()).x(), *places.cbegin());
    }
}

void TestKWGuestDlgImpl::theBusyCursorIsUpWhileTheDialogIsMade()
{
    for (const int opening : {Insert, EditGuest, EditGroup}) {
        const CursorWatch watch;
        const auto dialog = open(opening);
        QVERIFY(!watch.busy().isEmpty());
        QVERIFY(!watch.busy().contains(false));
        QVERIFY(!QApplication::overrideCursor());
    }
}

void TestKWGuestDlgImpl::theDialogIsNoHigherThanTheScreenHasRoomFor()
{
    QFETCH(int, opening);
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    const auto dialog = open(opening);
    QCOMPARE(dialog->maximumHeight(), room.height() - 100);
    QCOMPARE(dialog->height(), qMin(dialog->sizeHint().height(), room.height() - 100));
    QVERIFY(showActive(*dialog));
    QVERIFY(dialog->height() <= dialog->maximumHeight());

    const QFont font = QApplication::font();
    const auto restore = qScopeGuard([&] { QApplication::setFont(font); });
    QFont huge = font;
    huge.setPointSizeF(font.pointSizeF() * 4);
    QApplication::setFont(huge);
    const auto high = open(opening);
    QVERIFY(high->sizeHint().height() > room.height() - 100);
    QVERIFY(showActive(*high));
    QVERIFY(high->height() <= room.height() - 100);
}

void TestKWGuestDlgImpl::onALowScreenTheNotesShrinkFirst()
{
    const auto dialog = open(EditGuest);
    QVERIFY(showActive(*dialog));
    const int notes = dialog->ui.notes->height();
    const int height = dialog->height();
    dialog->resize(dialog->width(), height - 80);
    QTRY_COMPARE(dialog->ui.notes->height(), notes - 80);
    QVERIFY(!child<QScrollArea>(*dialog, "m_guestPage")->verticalScrollBar()->isVisible());
}

void TestKWGuestDlgImpl::onAVeryLowScreenThePagesScroll()
{
    const auto dialog = open(EditGuest);
    QVERIFY(showActive(*dialog));
    dialog->resize(dialog->width(), 280);
    QTRY_COMPARE(dialog->height(), 280);
    const auto *page = child<QScrollArea>(*dialog, "m_guestPage");
    QTRY_VERIFY(page->verticalScrollBar()->isVisible());
    const auto *ok = child<QPushButton>(*dialog, "m_okPushButton");
    QVERIFY(dialog->rect().contains(ok->geometry()));
    const auto *assigned = child<QLabel>(*dialog, "m_assignedTextLabel");
    QVERIFY(assigned->visibleRegion().isEmpty());
    dialog->ui.locked->setFocus(Qt::ShortcutFocusReason);
    QTRY_COMPARE(dialog->ui.locked->visibleRegion().boundingRect(), dialog->ui.locked->rect());
    QVERIFY(dialog->ui.title->visibleRegion().isEmpty());
}

void TestKWGuestDlgImpl::theHelpButtonAndF1AskForTheTopicOfTheOpening()
{
    QFETCH(int, opening);
    const QStringList topics{s("Insert_guest_window.htm"), s("Guest_properties_window.htm"),
                             s("Group_properties_window.htm")};
    const auto dialog = open(opening);
    QVERIFY(showActive(*dialog));
    QCOMPARE(topicAskedFor([&] { dialog->click("m_helpPushButton"); }), topics.at(opening));
    QCOMPARE(topicAskedFor([&] { QTest::keyClick(dialog.get(), Qt::Key_F1); }), topics.at(opening));
}

void TestKWGuestDlgImpl::aNewLanguageTranslatesTheOpeningInUse()
{
    QFETCH(int, opening);
    const QStringList captions{s("[Insert guest]"), s("[Guest properties]"),
                               s("[Group properties]")};
    const auto dialog = open(opening);
    const auto *button =
        child<QPushButton>(*dialog, opening == Insert ? "m_addPushButton" : "m_okPushButton");
    const auto count = dialog->findChildren<QWidget *>().size();
    const BracketTranslator translator;
    QTRY_COMPARE(dialog->windowTitle(), captions.at(opening));
    QCOMPARE(button->text(), opening == Insert ? s("[&Add]") : s("[&OK]"));
    QTRY_VERIFY(button->whatsThis().startsWith(u'['));
    QCOMPARE(button->shortcut(),
             QKeySequence(Qt::ALT | (opening == Insert ? Qt::Key_A : Qt::Key_O)));
    QCOMPARE(dialog->tabs->tabText(0), opening == EditGroup ? s("[G&roup]") : s("[&Guest]"));
    QCOMPARE(child<QLabel>(*dialog, "m_cityLabel")->text(), s("[&Town/City:]"));
    if (opening == EditGuest)
        QCOMPARE(child<QLabel>(*dialog, "m_assignedTextLabel")->text(), s("[Top, seat 3]"));
    QCOMPARE(dialog->findChildren<QWidget *>().size(), count);
}

REGISTER_TEST(TestKWGuestDlgImpl)
#include "tst_kwguestdlgimpl.moc"
