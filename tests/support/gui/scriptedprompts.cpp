#include "support/gui/scriptedprompts.h"

#include <QtTest>

ScriptedPrompts::ScriptedPrompts()
{
    setPrompts(this);
}

ScriptedPrompts::~ScriptedPrompts()
{
    setPrompts(nullptr);
    if (!m_answers.isEmpty())
        QTest::qFail("there are answers that nothing asked for", __FILE__, __LINE__);
}

void ScriptedPrompts::answer(const QString &button)
{
    m_answers.append({"message", button});
}

void ScriptedPrompts::answerFile(const QString &path, const QString &filter)
{
    m_answers.append({"file", QStringList{path, filter}});
}

void ScriptedPrompts::answerFont(const std::optional<QFont> &font)
{
    m_answers.append({"font", font ? QVariant(*font) : QVariant()});
}

void ScriptedPrompts::answerColour(const std::optional<QColor> &colour)
{
    m_answers.append({"colour", colour ? QVariant(*colour) : QVariant()});
}

void ScriptedPrompts::answerPrinter(bool print)
{
    m_answers.append({"printer", print});
}

QStringList ScriptedPrompts::texts() const
{
    QStringList result;
    for (const KWMessage &message : messages)
        result.append(message.text);
    return result;
}

int ScriptedPrompts::showMessage(QWidget *, const KWMessage &message)
{
    messages.append(message);
    const QString button = nextAnswer("message", message.text).toString();
    const auto index = message.buttons.indexOf(button);
    if (index < 0)
        QTest::qFail(qPrintable(QStringLiteral("no button %1 on %2").arg(button, message.text)),
                     __FILE__, __LINE__);
    return static_cast<int>(index);
}

KWFileAnswer ScriptedPrompts::askFile(QWidget *, const KWFileQuestion &question)
{
    files.append(question);
    const QStringList answer = nextAnswer("file", question.caption).toStringList();
    const QString path = answer.value(0);
    const QString filter = answer.value(1);
    return {path, filter.isEmpty() ? question.filters.section(QStringLiteral(";;"), 0, 0) : filter};
}

std::optional<QFont> ScriptedPrompts::askFont(QWidget *, const QFont &)
{
    const QVariant font = nextAnswer("font", {});
    return font.isNull() ? std::nullopt : std::optional(font.value<QFont>());
}

std::optional<QColor> ScriptedPrompts::askColour(QWidget *, const QColor &)
{
    const QVariant colour = nextAnswer("colour", {});
    return colour.isNull() ? std::nullopt : std::optional(colour.value<QColor>());
}

bool ScriptedPrompts::askPrinter(QWidget *, QPrinter &)
{
    return nextAnswer("printer", {}).toBool();
}

QVariant ScriptedPrompts::nextAnswer(const char *kind, const QString &question)
{
    if (m_answers.isEmpty() || m_answers.first().kind != kind) {
        QTest::qFail(qPrintable(QStringLiteral("no answer for the %1 question \"%2\"")
                                    .arg(QString::fromLatin1(kind), question)),
                     __FILE__, __LINE__);
        return {};
    }
    return m_answers.takeFirst().value;
}
