#include "gui/appearance/kwpixmaps.h"
#include "support/gui/shownlist.h"
#include "support/registeredtest.h"

#include <QMenu>

using Row = KWGuestListViewItem;

namespace {

QString texts(const Row &row)
{
    QStringList cells;
    for (int column = 0; column < Row::ColumnCount; ++column)
        cells.append(row.text(column));
    return cells.join(u'|');
}

qint64 picture(const Row &row, int column)
{
    return row.data(column, Qt::DecorationRole).value<QPixmap>().cacheKey();
}

Row *topRow(const ShownList &shown)
{
    return static_cast<Row *>(shown.list.topLevelItem(0));
}

KWGuest *addNamed(KWDocument &plan, const char *name, const char *last = "")
{
    KWGuest *guest = addGuest(plan, {name});
    plan.editGuest(guest, {.display_name = s(name),
                           .last_name = s(last),
                           .gender = guest->gender(),
                           .age = guest->age()});
    return guest;
}
} // namespace

class TestKWGuestListViewItem : public QObject
{
    Q_OBJECT

private slots:
    void aRowShowsWhatIsKnownOfItsGuest()
    {
        ShownList shown;
        KWGuest *guest = shown.plan.addGuest({.display_name = s("Dr Ann Lee"),
                                              .title = s("Dr"),
                                              .first_name = s("Ann"),
                                              .last_name = s("Lee"),
                                              .meal = s("fish"),
                                              .gender = KWGuest::Female,
                                              .locked = true,
                                              .notes = s("likes\nmusic"),
                                              .vip = true,
                                              .accepted = true},
                                             nullptr);
        const Row &row = *topRow(shown);
        QCOMPARE(row.guest(), guest);
        QCOMPARE(texts(row), s("|Dr Ann Lee|Dr|Ann|Lee|||||fish|likes music"));
        const KWPixmaps &pixmaps = KWPixmaps::instance();
        QCOMPARE(picture(row, Row::Picture), pixmaps.guestFemaleAdult().cacheKey());
        QCOMPARE(picture(row, Row::Locked), pixmaps.locked().cacheKey());
        QCOMPARE(picture(row, Row::Vip), pixmaps.vip().cacheKey());
        QCOMPARE(picture(row, Row::Accepted), pixmaps.accepted().cacheKey());
    }

    void aMarkThatIsNotSetLeavesItsCellEmpty()
    {
        ShownList shown;
        KWGuest *guest = addGuest(shown.plan, {"Ann", KWGuest::Male, true, true});
        shown.plan.setGuestLocked(guest, false);
        shown.plan.setGuestVip(guest, false);
        for (const int column : {Row::Locked, Row::Vip, Row::Accepted})
            QCOMPARE(picture(*topRow(shown), column), 0);
    }

    void theFirstColumnShowsGenderAndAge_data()
    {
        QTest::addColumn<int>("gender");
        QTest::addColumn<int>("age");
        QTest::addColumn<QString>("key");
        QTest::newRow("undefined adult") << 0 << 0 << s("0");
        QTest::newRow("man") << 1 << 0 << s("1");
        QTest::newRow("woman") << 2 << 0 << s("2");
        QTest::newRow("undefined child") << 0 << 1 << s("3");
        QTest::newRow("boy") << 1 << 1 << s("4");
        QTest::newRow("girl") << 2 << 1 << s("5");
    }

    void theFirstColumnShowsGenderAndAge()
    {
        QFETCH(int, gender);
        QFETCH(int, age);
        ShownList shown;
        addGuest(shown.plan, {"Ann", gender, false, false, age});
        QCOMPARE(picture(*topRow(shown), Row::Picture),
                 KWPixmaps::instance().guest(gender, age).cacheKey());
        QTEST(topRow(shown)->key(Row::Picture), "key");
    }

    void aGuestOfAnUnknownGenderKeepsThePicture()
    {
        ShownList shown;
        KWGuest *guest = addGuest(shown.plan, {"Ann", KWGuest::Female});
        shown.plan.editGuest(guest, {.display_name = s("Ann"), .gender = 7});
        QCOMPARE(picture(*topRow(shown), Row::Picture),
                 KWPixmaps::instance().guestFemaleAdult().cacheKey());
    }

    void theKeysOfTheMarksPutTheMarkedFirst()
    {
        ShownList shown;
        KWGuest *guest = addGuest(shown.plan, {"Ann"});
        const auto keys = [&shown] {
            const Row &row = *topRow(shown);
            return row.key(Row::Locked) + row.key(Row::Vip) + row.key(Row::Accepted);
        };
        QCOMPARE(keys(), s("111"));
        shown.plan.setGuestLocked(guest, true);
        QCOMPARE(keys(), s("011"));
        shown.plan.setGuestVip(guest, true);
        QCOMPARE(keys(), s("001"));
        shown.plan.setGuestAccepted(guest, true);
        QCOMPARE(keys(), s("000"));
    }

    void theKeyOfATextColumnIsItsText()
    {
        ShownList shown;
        shown.plan.addGuest({.display_name = s("Dr Ann Lee"),
                             .title = s("Dr"),
                             .first_name = s("Ann"),
                             .last_name = s("Lee"),
                             .meal = s("fish"),
                             .notes = s("1234567890123456789012345678901")},
                            nullptr);
        const Row &row = *topRow(shown);
        QCOMPARE(row.key(Row::DisplayName), s("Dr Ann Lee"));
        QCOMPARE(row.key(Row::Title), s("Dr"));
        QCOMPARE(row.key(Row::FirstName), s("Ann"));
        QCOMPARE(row.key(Row::LastName), s("Lee"));
        QCOMPARE(row.key(Row::Assigned), s(""));
        QCOMPARE(row.key(Row::Meal), s("fish"));
        QCOMPARE(row.key(Row::Notes), s("123456789012345678901234567..."));
    }

    void eachColumnSortsByItsKeys_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("ascending");
        QTest::addColumn<QString>("descending");
        QTest::newRow("picture") << int(Row::Picture) << s("B A C") << s("C A B");
        QTest::newRow("display name") << int(Row::DisplayName) << s("A B C") << s("C B A");
        QTest::newRow("title") << int(Row::Title) << s("C B A") << s("A B C");
        QTest::newRow("first name") << int(Row::FirstName) << s("B C A") << s("A C B");
        QTest::newRow("last name") << int(Row::LastName) << s("C A B") << s("B A C");
        QTest::newRow("assigned") << int(Row::Assigned) << s("B C A") << s("A C B");
        QTest::newRow("locked") << int(Row::Locked) << s("B C A") << s("C A B");
        QTest::newRow("vip") << int(Row::Vip) << s("C A B") << s("A B C");
        QTest::newRow("accepted") << int(Row::Accepted) << s("A C B") << s("C B A");
        QTest::newRow("meal") << int(Row::Meal) << s("A C B") << s("B C A");
        QTest::newRow("notes") << int(Row::Notes) << s("C B A") << s("A B C");
    }

    void eachColumnSortsByItsKeys()
    {
        ShownList shown;
        KWDocument &plan = shown.plan;
        KWGuest *a = plan.addGuest({.display_name = s("A"),
                                    .title = s("Mr"),
                                    .first_name = s("Zoe"),
                                    .last_name = s("Fry"),
                                    .gender = 2,
                                    .notes = s("z"),
                                    .accepted = true},
                                   nullptr);
        plan.addGuest({.display_name = s("B"),
                       .title = s("Dr"),
                       .first_name = s("Amy"),
                       .last_name = s("Gray"),
                       .meal = s("soup"),
                       .locked = true,
                       .notes = s("y")},
                      nullptr);
        KWGuest *c = plan.addGuest({.display_name = s("C"),
                                    .first_name = s("Eve"),
                                    .last_name = s("Eden"),
                                    .meal = s("fish"),
                                    .age = 1,
                                    .notes = s("x"),
                                    .vip = true},
                                   nullptr);
        plan.assignGuest(a, addTable(plan, "Top table", KWTable::Circular, 4), 0, true);
        plan.assignGuest(c, addTable(plan, "Side table", KWTable::Circular, 4), 0, true);
        QFETCH(int, column);
        shown.list.sortByColumn(column, Qt::AscendingOrder);
        QTEST(shown.names(), "ascending");
        shown.list.sortByColumn(column, Qt::DescendingOrder);
        QTEST(shown.names(), "descending");
    }

    void textsSortAsTheLocaleSortsNames()
    {
        ShownList shown;
        for (const char *name : {"zoe", "Öznur", "adam", "Émile", "Olga", "Eva", "Fritz", ""})
            addNamed(shown.plan, name);
        shown.list.sortByColumn(Row::DisplayName, Qt::AscendingOrder);
        QCOMPARE(shown.names(), s(" adam Émile Eva Fritz Olga Öznur zoe"));
        shown.list.sortByColumn(Row::DisplayName, Qt::DescendingOrder);
        QCOMPARE(shown.names(), s("zoe Öznur Olga Fritz Eva Émile adam "));
    }

    void anotherLocaleSortsOtherwise()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::Swedish));
        ShownList shown;
        QLocale::setDefault(before);
        for (const char *name : {"zoe", "Öznur", "Olga"})
            addNamed(shown.plan, name);
        shown.list.sortByColumn(Row::DisplayName, Qt::AscendingOrder);
        QCOMPARE(shown.names(), s("Olga zoe Öznur"));
    }

    void aNewLocaleSortsTheListAnew()
    {
        ShownList shown;
        for (const char *name : {"zoe", "Öznur", "Olga"})
            addNamed(shown.plan, name);
        shown.list.sortByColumn(Row::DisplayName, Qt::DescendingOrder);
        QCOMPARE(shown.names(), s("zoe Öznur Olga"));
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::Swedish));
        QEvent change(QEvent::LocaleChange);
        QCoreApplication::sendEvent(&shown.list, &change);
        QLocale::setDefault(before);
        QCOMPARE(shown.names(), s("Öznur zoe Olga"));
    }

    void thePicturesAreSaidToThoseWhoCannotSeeThem()
    {
        ShownList shown;
        KWGuest *ann = addGuest(shown.plan, {"Ann", KWGuest::Female, true, true, KWGuest::Child});
        shown.plan.setGuestAccepted(ann, true);
        const auto said = [&shown](int column) {
            return topRow(shown)->data(column, Qt::AccessibleTextRole).toString();
        };
        QCOMPARE(said(Row::Picture), s("Ann, female child, no seat, locked, VIP, accepted"));
        QCOMPARE(said(Row::DisplayName), s("Ann"));
        QCOMPARE(said(Row::Locked) + said(Row::Vip) + said(Row::Accepted), s("LockedVIPAccepted"));
        shown.plan.setGuestVip(ann, false);
        QCOMPARE(said(Row::Vip), s(""));
    }

    void theFirstCellSaysTheRowInASentence_data()
    {
        QTest::addColumn<int>("gender");
        QTest::addColumn<int>("age");
        QTest::addColumn<QString>("sentence");
        QTest::newRow("adult") << 0 << 0 << s("Ann, adult, T %2, seat 3");
        QTest::newRow("man") << 1 << 0 << s("Ann, male adult, T %2, seat 3");
        QTest::newRow("woman") << 2 << 0 << s("Ann, female adult, T %2, seat 3");
        QTest::newRow("child") << 0 << 1 << s("Ann, child, T %2, seat 3");
        QTest::newRow("boy") << 1 << 1 << s("Ann, male child, T %2, seat 3");
        QTest::newRow("girl") << 2 << 1 << s("Ann, female child, T %2, seat 3");
        QTest::newRow("unknown") << 7 << 1 << s("Ann, T %2, seat 3");
    }

    void theFirstCellSaysTheRowInASentence()
    {
        ShownList shown;
        QFETCH(int, gender);
        QFETCH(int, age);
        KWGuest *ann = addGuest(shown.plan, {"Ann", gender, false, false, age});
        shown.plan.assignGuest(ann, addTable(shown.plan, "T %2", KWTable::Circular, 4), 2, true);
        QTEST(topRow(shown)->data(Row::Picture, Qt::AccessibleTextRole).toString(), "sentence");
    }

    void notesOfThirtyCharactersAreShownWholeAndOneMoreIsCut()
    {
        ShownList shown;
        const QString thirty = s("123456789012345678901234567890");
        for (const QString &notes : {thirty, thirty + u'1'})
            shown.plan.addGuest({.display_name = notes, .notes = notes}, nullptr);
        shown.list.sortByColumn(Row::DisplayName, Qt::AscendingOrder);
        QCOMPARE(topRow(shown)->text(Row::Notes), thirty);
        QCOMPARE(static_cast<Row *>(shown.list.topLevelItem(1))->text(Row::Notes),
                 s("123456789012345678901234567..."));
    }

    void aLineBreakInTheNotesIsShownAsABlank()
    {
        ShownList shown;
        // The cut counts characters before the blanks come in.
        const QString notes = s("no\nnuts\n") + QString(30, u'x');
        shown.plan.addGuest({.display_name = s("Ann"), .notes = notes}, nullptr);
        QCOMPARE(topRow(shown)->text(Row::Notes), s("no nuts ") + QString(19, u'x') + s("..."));
    }

    void aGuestWithAnEmptyLastNameComesFirstAtTheStart()
    {
        ShownList shown;
        addNamed(shown.plan, "Ann", "Adams");
        addNamed(shown.plan, "Bob");
        addNamed(shown.plan, "Cleo", "aaron");
        QCOMPARE(shown.list.header()->sortIndicatorSection(), int(Row::LastName));
        QCOMPARE(shown.list.header()->sortIndicatorOrder(), Qt::AscendingOrder);
        QCOMPARE(shown.names(), s("Bob Cleo Ann"));
    }

    void whoHasNoSeatStandsInBold()
    {
        ShownList shown;
        KWGuest *ann = addGuest(shown.plan, {"Ann"});
        QStyleOptionViewItem unseated;
        unseated.palette = shown.list.palette();
        topRow(shown)->prepareToPaint(unseated);
        QVERIFY(unseated.font.bold());
        shown.plan.assignGuest(ann, addTable(shown.plan, "T", KWTable::Circular, 4), 0, true);
        // With the column of tables hidden, too.
        shown.list.setColumnShown(Row::Assigned, false);
        QStyleOptionViewItem seated;
        seated.palette = shown.list.palette();
        topRow(shown)->prepareToPaint(seated);
        QVERIFY(!seated.font.bold());
    }

    void theContextMenuHasTheCommandsOfTheMainWindow()
    {
        ShownList shown;
        addGuest(shown.plan, {"Ann"});
        const QStringList names{s("properties"), s("show"),     s("proximity"), s("rotate"),
                                s("lock"),       s("accepted"), s("unassign"),  s("delete")};
        for (int i = 0; i < names.size(); ++i)
            shown.window.editAction(static_cast<KWMainWindow::EditAction>(i))->setText(names[i]);
        QStringList entries;
        QPoint place;
        QTimer::singleShot(0, this, [&] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu);
            for (const QAction *action : menu->actions())
                entries.append(action->isSeparator() ? s("-") : action->text());
            place = menu->pos();
            menu->close();
        });
        QCursor::setPos(300, 200);
        topRow(shown)->contextMenu();
        QCOMPARE(entries.join(u' '),
                 s("properties - show - proximity lock accepted unassign - delete"));
        QCOMPARE(place, QPoint(300, 200));
    }
};

REGISTER_TEST(TestKWGuestListViewItem)
#include "tst_kwguestlistviewitem.moc"
