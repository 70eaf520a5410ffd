#pragma once

#include "core/model/kwmodelhooks.h"
#include "support/testplan.h"

#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <utility>

/// The text of a plan file that holds these elements.
inline QByteArray planText(const QByteArray &elements)
{
    return "<!DOCTYPE ambrelune>\n<root>\n" + elements + "\n</root>\n";
}

inline bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A plan and what else a plan file holds or loading one tells.
struct Plan
{
    KWDocument document;
    KWViewSettings views;
    /// Loading must set it, so it starts as what most files do not give.
    bool versionDiffers = true;
    int result = -1;

    Plan() = default;
    explicit Plan(const QString &path) { load(path); }
    void load(const QString &path) { result = document.load(path, views, versionDiffers); }
    /// Loads a text by way of a file.
    void loadText(const QByteArray &text)
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(s("plan.kw"));
        if (writeFile(path, text))
            load(path);
    }
    QByteArray text() const { return document.toPlanText(views); }
};

/// The plan of a file that holds these elements.
struct PlanOf : Plan
{
    explicit PlanOf(const QByteArray &elements) { loadText(planText(elements)); }
};

/// An element of a plan's text: the names of those around it and its own, joined with "/", and
/// the attributes as they are written.
struct PlanElement
{
    QString path;
    QMap<QString, QString> attributes;
};

/// All elements of a text, in order; empty if it is no XML.
inline QList<PlanElement> elementsOf(const QByteArray &text)
{
    QXmlStreamReader xml(text);
    QStringList path;
    QList<PlanElement> elements;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement()) {
            path.append(xml.name().toString());
            elements.append({path.join(u'/'), {}});
            for (const QXmlStreamAttribute &attribute : xml.attributes())
                elements.last().attributes.insert(attribute.name().toString(),
                                                  attribute.value().toString());
        } else if (xml.isEndElement()) {
            path.removeLast();
        }
    }
    return xml.hasError() ? QList<PlanElement>() : elements;
}

/// The elements of a text that stand at a path.
inline QList<PlanElement> elementsAt(const QByteArray &text, const char *path)
{
    QList<PlanElement> elements = elementsOf(text);
    elements.removeIf([&](const PlanElement &element) { return element.path != s(path); });
    return elements;
}

/// A setting's value as it is written in a plan's text; null if it is not there.
inline QString settingIn(const QByteArray &text, const QString &key)
{
    for (const PlanElement &element : elementsOf(text)) {
        if (element.path == s("root/") + key)
            return element.attributes.value(s("value"));
    }
    return {};
}

/// Restores the hooks of the model when a test ends.
class HooksGuard
{
public:
    HooksGuard() = default;
    HooksGuard(const HooksGuard &) = delete;
    HooksGuard &operator=(const HooksGuard &) = delete;
    ~HooksGuard() { modelHooks() = m_before; }

private:
    KWModelHooks m_before = modelHooks();
};

/// Writes down the progress reports: "done of total", and "finished".
class ProgressLog
{
public:
    ProgressLog()
    {
        modelHooks().progress = [this](int done, int total) {
            m_reports.append(s("%1 of %2").arg(done).arg(total));
        };
        modelHooks().progressFinished = [this] { m_reports.append(s("finished")); };
    }

    /// The reports since the last call.
    QStringList take() { return std::exchange(m_reports, {}); }

private:
    HooksGuard m_guard;
    QStringList m_reports;
};
