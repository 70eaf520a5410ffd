#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using namespace Qt::StringLiterals;

// Reads the includes of all sources and fails when a folder knows one that it must not know, or
// when folders or files include each other in a circle.

namespace {

/// What each folder under src/ may include, itself aside.
const QMap<QString, QStringList> &allowed()
{
    static const QMap<QString, QStringList> arrows = [] {
        const QStringList core{u"core/model"_s, u"core/autolayout"_s, u"core/charts"_s,
                               u"core/exchange"_s};
        QMap<QString, QStringList> result{{u"core/model"_s, {}},
                                          {u"core/autolayout"_s, {u"core/model"_s}},
                                          {u"core/charts"_s, {u"core/model"_s}},
                                          {u"core/exchange"_s, {u"core/model"_s}}};
        QStringList below = core;
        for (const QString &folder : QStringList{u"gui/appearance"_s, u"gui/framework"_s,
                                                 u"gui/exchange"_s, u"gui/dialogs"_s}) {
            result.insert(folder, below);
            below.append(folder);
        }
        const QStringList panes{u"gui/floorplan"_s, u"gui/panes"_s, u"gui/charts"_s};
        for (const QString &folder : panes)
            result.insert(folder, below);
        result.insert(u"gui/shell"_s, below + panes);
        result.insert(u"cli"_s, core + QStringList{u"gui/floorplan"_s, u"gui/charts"_s});
        return result;
    }();
    return arrows;
}

struct Source
{
    QString folder;
    QStringList includes;
};

/// The sources under a folder by file name, with the project's own files that each includes.
class Sources
{
public:
    explicit Sources(const QString &root)
    {
        QDirIterator files(root, {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QFileInfo info(files.next());
            if (m_sources.contains(info.fileName()))
                m_duplicates.append(info.fileName());
            m_sources.insert(info.fileName(), {QDir(root).relativeFilePath(info.path()),
                                               includesOf(info.filePath())});
        }
    }

    const QHash<QString, Source> &all() const { return m_sources; }
    const QStringList &duplicates() const { return m_duplicates; }

    /// Which folders each folder includes.
    QHash<QString, QSet<QString>> folders() const
    {
        QHash<QString, QSet<QString>> result;
        for (const Source &source : m_sources) {
            for (const QString &include : source.includes) {
                if (m_sources.contains(include) && m_sources[include].folder != source.folder)
                    result[source.folder].insert(m_sources[include].folder);
            }
        }
        return result;
    }

    QHash<QString, QSet<QString>> files() const
    {
        QHash<QString, QSet<QString>> result;
        for (auto it = m_sources.cbegin(); it != m_sources.cend(); ++it)
            result[it.key()] = QSet<QString>(it->includes.begin(), it->includes.end());
        return result;
    }

private:
    static QStringList includesOf(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        static const QRegularExpression line(u"^\\s*#\\s*include\\s*\\x22([^\\x22]+)"_s,
                                             QRegularExpression::MultilineOption);
        QStringList result;
        for (const auto &match : line.globalMatch(QString::fromUtf8(file.readAll())))
            result.append(match.captured(1));
        return result;
    }

    QHash<QString, Source> m_sources;
    QStringList m_duplicates;
};

/// A circle in a graph, as the nodes on it; empty if there is none.
class CircleFinder
{
public:
    explicit CircleFinder(const QHash<QString, QSet<QString>> &graph)
        : m_graph(graph)
    {
    }

    QStringList find()
    {
        for (const QString &node : m_graph.keys()) {
            if (visit(node))
                return m_path;
        }
        return {};
    }

private:
    bool visit(const QString &node)
    {
        if (m_path.contains(node)) {
            m_path.append(node);
            return true;
        }
        if (m_done.contains(node))
            return false;
        m_path.append(node);
        for (const QString &next : m_graph.value(node)) {
            if (visit(next))
                return true;
        }
        m_path.removeLast();
        m_done.insert(node);
        return false;
    }

    const QHash<QString, QSet<QString>> &m_graph;
    QStringList m_path;
    QSet<QString> m_done;
};

/// What the build makes of a form or a class.
bool isGenerated(const QString &include)
{
    return include.startsWith(u"ui_"_s) || include.endsWith(u".moc"_s);
}

QStringList wrongArrows(const Sources &sources)
{
    QStringList wrong;
    for (auto it = sources.all().cbegin(); it != sources.all().cend(); ++it) {
        if (!allowed().contains(it->folder))
            wrong.append(it.key() + u" is in the unknown folder "_s + it->folder);
        for (const QString &include : it->includes) {
            const QString target = sources.all().value(include).folder;
            const QString line = it->folder + u'/' + it.key() + u" includes "_s;
            if (target.isEmpty() && !isGenerated(include))
                wrong.append(line + u"what is no file name of the project, "_s + include);
            else if (!target.isEmpty() && target != it->folder &&
                     !allowed().value(it->folder).contains(target))
                wrong.append(line + target + u'/' + include);
        }
    }
    return wrong;
}

void write(const QString &path, const QByteArray &text)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
}
} // namespace

class TestArrows : public QObject
{
    Q_OBJECT

private slots:
    void sourcesPointTheRightWay()
    {
        const Sources sources(QStringLiteral(AMBRELUNE_SOURCE_DIR "/src"));
        QVERIFY(sources.all().size() > 20);
        QCOMPARE(sources.duplicates(), QStringList());
        QCOMPARE(wrongArrows(sources), QStringList());
        const auto folders = sources.folders();
        QCOMPARE(CircleFinder(folders).find(), QStringList());
        const auto files = sources.files();
        QCOMPARE(CircleFinder(files).find(), QStringList());
    }

    void aWrongArrowIsFound()
    {
        const QTemporaryDir folder;
        write(folder.filePath(u"core/model/a.h"_s), "#include \"b.h\"\n");
        write(folder.filePath(u"core/autolayout/b.h"_s), "#include <vector>\n");
        write(folder.filePath(u"gui/panes/c.cpp"_s), " # include \"d.h\"\n");
        write(folder.filePath(u"gui/charts/d.h"_s), "");
        write(folder.filePath(u"attic/e.h"_s), "#include \"ui_e.h\"\n");
        write(folder.filePath(u"core/model/f.h"_s), "#include \"../autolayout/b.h\"\n");
        QStringList wrong = wrongArrows(Sources(folder.path()));
        wrong.sort();
        QCOMPARE(
            wrong,
            QStringList(
                {u"core/model/a.h includes core/autolayout/b.h"_s,
                 u"core/model/f.h includes what is no file name of the project, ../autolayout/b.h"_s,
                 u"e.h is in the unknown folder attic"_s,
                 u"gui/panes/c.cpp includes gui/charts/d.h"_s}));
    }

    void aCircleIsFound()
    {
        const QTemporaryDir folder;
        write(folder.filePath(u"core/model/a.h"_s), "#include \"b.h\"\n");
        write(folder.filePath(u"core/model/b.h"_s), "#include \"c.h\"\n");
        write(folder.filePath(u"core/model/c.h"_s), "#include \"b.h\"\n");
        const auto files = Sources(folder.path()).files();
        const QStringList circle = CircleFinder(files).find();
        QVERIFY(circle.contains(u"b.h"_s) && circle.contains(u"c.h"_s));
        const QHash<QString, QSet<QString>> none{
            {u"a"_s, {u"b"_s, u"c"_s}}, {u"b"_s, {u"c"_s}}, {u"c"_s, {}}};
        QCOMPARE(CircleFinder(none).find(), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestArrows)
#include "tst_arrows.moc"
