#include "gui/framework/kwdatadirectory.h"
#include "gui/framework/kwhelpfile.h"
#include "gui/framework/kwhelpsearch.h"
#include "gui/framework/kwmainwindow.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"

using namespace Qt::StringLiterals;

class TestKWHelpSearch : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const QString version = KWMainWindow::versionText().replace(u'.', u'_');
        m_file =
            std::make_unique<KWHelpFile>(u"%1/ambrelune_%2.chm"_s.arg(dataDirectory(), version));
        QVERIFY(m_file->isOpen());
    }

    void withoutWordsAllPagesAreHits()
    {
        const QStringList pages{u"Tutorial.htm"_s, u"Welcome.htm"_s};
        KWHelpSearch search(m_file.get(), pages);
        QCOMPARE(search.pagesWith({}), pages);
        QCOMPARE(search.pagesWith(u"  "_s), pages);
    }

    void aHitHasAllWordsInWhateverOrderAndCase()
    {
        KWHelpSearch search(m_file.get(), {u"Tutorial.htm"_s, u"Dimensions_window.htm"_s});
        QCOMPARE(search.pagesWith(u"METRES feet"_s), QStringList{u"Dimensions_window.htm"_s});
        QCOMPARE(search.pagesWith(u"feet orangery"_s), QStringList());
        QCOMPARE(search.pagesWith(u"Orang"_s), QStringList{u"Tutorial.htm"_s});
    }

    void markUpIsNoText()
    {
        KWHelpSearch search(m_file.get(), {u"Tutorial.htm"_s});
        QCOMPARE(search.pagesWith(u"span"_s), QStringList());
        QCOMPARE(search.pagesWith(u"class=\"menu\""_s), QStringList());
    }

    void whatIsNoPageIsNoHit()
    {
        KWHelpSearch search(m_file.get(), {u"None.htm"_s, u"Tutorial.htm"_s});
        QCOMPARE(search.pagesWith(u"e"_s), QStringList{u"Tutorial.htm"_s});
    }

    void noMoreThanAHundredPagesAreRead()
    {
        QStringList pages;
        for (int i = 0; i < 100; ++i)
            pages.append(u"None.htm"_s);
        KWHelpSearch search(m_file.get(), pages + QStringList{u"Tutorial.htm"_s});
        QCOMPARE(search.pagesWith(u"e"_s), QStringList());
    }

private:
    std::unique_ptr<KWHelpFile> m_file;
};

REGISTER_TEST(TestKWHelpSearch)
#include "tst_kwhelpsearch.moc"
