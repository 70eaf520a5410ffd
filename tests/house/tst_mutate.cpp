#include "support/registeredtest.h"
#include "support/sourcepath.h"

#include <QProcess>
#include <QTemporaryDir>

#include <QtTest>

/// scripts/mutate makes the faults that it promises, and leaves comments and messages alone.
class TestMutate : public QObject
{
    Q_OBJECT

private slots:
    void aSourceGetsTheseFaults()
    {
        QCOMPARE(faultsIn("// a == b\n"
                          "#include <QList>\n"
                          "void Door::open(int turns)\n"
                          "{\n"
                          "    if (turns < 3 && !m_isLocked)\n"
                          "        turnKey(turns + 1);\n"
                          "    m_isOpen = true;\n"
                          "    qWarning(\"4 > %d\", 5);\n"
                          "    setText(tr(\"1 == 2 and 3\"));\n"
                          "    QList<int> turned;\n"
                          "    for (auto bolt = first(); bolt; bolt = next())\n"
                          "        move(bolt);\n"
                          "}\n"
                          "bool Door::isOpen() const\n"
                          "{\n"
                          "    return m_isOpen == true;\n"
                          "}\n"
                          "QString Door::name() const\n"
                          "{\n"
                          "    return m_name;\n"
                          "}\n"),
                 QStringLiteral("4: early return: Door::open() does nothing\n"
                                "5: condition: turns < 3 && !m_isLocked negated\n"
                                "5: operator: turns < 3 -> <=\n"
                                "5: constant: turns< 3 -> 4\n"
                                "5: operator: 3 && ! -> ||\n"
                                "6: call left out: turnKey(turns + 1);\n"
                                "6: operator: turns + 1 -> -\n"
                                "6: constant: turns+ 1 -> 2\n"
                                "7: assignment left out: m_isOpen = true;\n"
                                "7: constant: m_isOpen= true -> false\n"
                                "9: call left out: setText(tr(\"1 == 2 and 3\"));\n"
                                "12: call left out: move(bolt);\n"
                                "16: return value: m_isOpen == true negated\n"
                                "16: operator: m_isOpen == true -> !=\n"
                                "16: constant: m_isOpen== true -> false\n"
                                "20: return value: m_name -> {}\n"));
    }

private:
    /// The faults of a source, a line each.
    static QString faultsIn(const QByteArray &source)
    {
        const QTemporaryDir folder;
        QFile file(folder.filePath(QStringLiteral("sample.cpp")));
        if (!file.open(QIODevice::WriteOnly) || file.write(source) != source.size())
            qFatal("no sample");
        file.close();
        QProcess process;
        process.start(QStringLiteral("python3"),
                      {sourcePath("scripts/mutate"), QStringLiteral("--list"), file.fileName()});
        if (!process.waitForFinished(-1) || process.exitCode() != 0)
            return QString::fromUtf8(process.readAllStandardError());
        QString lines;
        for (const QByteArray &line : process.readAllStandardOutput().split('\n')) {
            const QString text = QString::fromUtf8(line);
            if (!text.isEmpty())
                lines += text.section(QStringLiteral("sample.cpp:"), 1) + u'\n';
        }
        return lines;
    }
};

REGISTER_TEST(TestMutate)
#include "tst_mutate.moc"
