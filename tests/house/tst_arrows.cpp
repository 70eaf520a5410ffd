#include "support/registeredtest.h"
#include "support/sourcepath.h"

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

/// The sources under a folder by their paths from it, with the project's own files that each
/// includes.
class Sources
{
public:
    explicit Sources(const QString &root)
    {
        QDirIterator files(root, {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            m_includes.insert(QDir(root).relativeFilePath(path), includesOf(path));
        }
    }

    /// What each file includes.
    const QMap<QString, QStringList> &includes() const { return m_includes; }

    /// Which folders each folder includes.
    QHash<QString, QSet<QString>> folders() const
    {
        QHash<QString, QSet<QString>> result;
        forEachInclude([&result](const QString &file, const QString &include) {
            if (folderOf(file) != folderOf(include))
                result[folderOf(file)].insert(folderOf(include));
        });
        return result;
    }

    /// Which units each unit includes: a header and the source of its name are one.
    QHash<QString, QSet<QString>> units() const
    {
        QHash<QString, QSet<QString>> result;
        forEachInclude([&result](const QString &file, const QString &include) {
            if (unitOf(file) != unitOf(include))
                result[unitOf(file)].insert(unitOf(include));
        });
        return result;
    }

    static QString folderOf(const QString &path) { return path.section(u'/', 0, -2); }

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

    static QString unitOf(const QString &path) { return path.section(u'.', 0, -2); }

    template <typename Function>
    void forEachInclude(Function function) const
    {
        for (auto it = m_includes.cbegin(); it != m_includes.cend(); ++it) {
            for (const QString &include : it.value()) {
                if (m_includes.contains(include))
                    function(it.key(), include);
            }
        }
    }

    QMap<QString, QStringList> m_includes;
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
    for (auto it = sources.includes().cbegin(); it != sources.includes().cend(); ++it) {
        const QString folder = Sources::folderOf(it.key());
        if (!allowed().contains(folder))
            wrong.append(it.key() + u" is in an unknown folder"_s);
        for (const QString &include : it.value()) {
            const QString line = it.key() + u" includes "_s;
            const QString target = Sources::folderOf(include);
            if (!sources.includes().contains(include)) {
                if (!isGenerated(include))
                    wrong.append(line + u"what is no path of the project, "_s + include);
            } else if (target != folder && !allowed().value(folder).contains(target)) {
                wrong.append(line + include);
            }
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
        const Sources sources(sourcePath("src"));
        QVERIFY(sources.includes().size() > 20);
        QCOMPARE(wrongArrows(sources), QStringList());
        const auto folders = sources.folders();
        QCOMPARE(CircleFinder(folders).find(), QStringList());
        const auto units = sources.units();
        QCOMPARE(CircleFinder(units).find(), QStringList());
    }

    void aWrongArrowIsFound()
    {
        const QTemporaryDir folder;
        write(folder.filePath(u"core/model/a.h"_s), "#include \"core/autolayout/b.h\"\n");
        write(folder.filePath(u"core/autolayout/b.h"_s), "#include <vector>\n");
        write(folder.filePath(u"gui/panes/c.cpp"_s), " # include \"gui/charts/d.h\"\n");
        write(folder.filePath(u"gui/charts/d.h"_s), "");
        write(folder.filePath(u"attic/e.h"_s), "#include \"ui_e.h\"\n");
        write(folder.filePath(u"core/model/f.h"_s), "#include \"a.h\"\n");
        QCOMPARE(wrongArrows(Sources(folder.path())),
                 QStringList({u"attic/e.h is in an unknown folder"_s,
                              u"core/model/a.h includes core/autolayout/b.h"_s,
                              u"core/model/f.h includes what is no path of the project, a.h"_s,
                              u"gui/panes/c.cpp includes gui/charts/d.h"_s}));
    }

    void aCircleIsFound()
    {
        const QTemporaryDir folder;
        write(folder.filePath(u"core/model/a.h"_s), "#include \"core/model/b.h\"\n");
        write(folder.filePath(u"core/model/b.h"_s), "");
        write(folder.filePath(u"core/model/b.cpp"_s),
              "#include \"core/model/b.h\"\n#include \"core/model/c.h\"\n");
        write(folder.filePath(u"core/model/c.h"_s), "#include \"core/model/b.h\"\n");
        const auto units = Sources(folder.path()).units();
        const QStringList circle = CircleFinder(units).find();
        QVERIFY(circle.contains(u"core/model/b"_s) && circle.contains(u"core/model/c"_s));
        const QHash<QString, QSet<QString>> none{
            {u"a"_s, {u"b"_s, u"c"_s}}, {u"b"_s, {u"c"_s}}, {u"c"_s, {}}};
        QCOMPARE(CircleFinder(none).find(), QStringList());
    }
};

REGISTER_TEST(TestArrows)
#include "tst_arrows.moc"
