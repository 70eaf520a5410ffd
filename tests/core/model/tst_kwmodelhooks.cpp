#include "core/model/kwmodelhooks.h"
#include "support/registeredtest.h"

#include <QtTest>

#include <string>

using namespace Qt::StringLiterals;

class TestKWModelHooks : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_lines.clear();
        modelHooks().trace = [this](const QString &line) { m_lines.append(line); };
    }

    void cleanup() { modelHooks().trace = nullptr; }

    void aTraceLineIsATextWithWhatFollowsIt()
    {
        traceLine(u"a text"_s);
        traceLine(u"a text "_s, u"and another"_s);
        traceLine(u"a number "_s, -7);
        QCOMPARE(m_lines, (QStringList{u"a text"_s, u"a text and another"_s, u"a number -7"_s}));
    }

    void aTraceLineIsFormatted()
    {
        traceFormatted("seat %d of %s, 100%%", 3, "Zoë's table");
        traceFormatted("** done");
        QCOMPARE(m_lines, (QStringList{u"seat 3 of Zoë's table, 100%"_s, u"** done"_s}));
    }

    void aLineTooLongIsReplacedByANote()
    {
        traceFormatted("%s", std::string(511, 'x').c_str());
        traceFormatted("%s", std::string(512, 'x').c_str());
        traceFormatted("%s", std::string(100000, 'x').c_str());
        const QString note = u"*** trace buffer overflow ***"_s;
        QCOMPARE(m_lines, (QStringList{QString(511, u'x'), note, note}));
    }

    void withoutASinkTheLinesGoNowhere()
    {
        modelHooks().trace = nullptr;
        traceLine(u"a text"_s);
        traceFormatted("%d", 1);
        QCOMPARE(m_lines, QStringList());
    }

private:
    QStringList m_lines;
};

REGISTER_TEST(TestKWModelHooks)
#include "tst_kwmodelhooks.moc"
