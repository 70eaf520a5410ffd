#include "commandline.h"

#include "commands.h"
#include "console.h"

CommandLine::CommandLine(const QString &command, const QString &description)
    : m_command(command)
    , m_description(description)
{
    m_parser.addOption({{QStringLiteral("h"), QStringLiteral("help")},
                        QStringLiteral("Show this help and exit.")});
}

void CommandLine::addOutputOption()
{
    m_needsOutput = true;
    addOption({{QStringLiteral("o"), QStringLiteral("output")},
               QStringLiteral("The plan file to write; \"-\" is standard output. An existing "
                              "file is replaced once all is written."),
               QStringLiteral("OUT")});
}

std::optional<int> CommandLine::parse(const QStringList &arguments)
{
    if (!m_parser.parse(arguments))
        return refuse(m_parser.errorText());
    if (m_parser.isSet(QStringLiteral("help")))
        return printText(helpText());
    const qsizetype plans = m_parser.positionalArguments().size() - 1;
    if (plans != 1)
        return refuse(plans < 1 ? QStringLiteral("Which plan? Name a file.")
                                : QStringLiteral("One plan at a time."));
    if (m_needsOutput && output().isEmpty())
        return refuse(QStringLiteral("Where to? Name the file to write with -o."));
    return std::nullopt;
}

QString CommandLine::helpText() const
{
    // The parser's own usage line knows nothing of commands.
    const QString options = m_parser.helpText();
    return QStringLiteral("Usage: ambrelune-cli %1 PLAN %2[options]\n%3\n\n")
               .arg(m_command, m_needsOutput ? QStringLiteral("-o OUT ") : QString(),
                    m_description) +
           options.mid(options.indexOf(QLatin1StringView("Options:")));
}

std::optional<qint64> CommandLine::number(const QString &option, qint64 most) const
{
    bool ok = false;
    const qint64 result = value(option).toLongLong(&ok);
    if (ok && result >= 0 && result <= most)
        return result;
    refuse(QStringLiteral("--%1 takes a whole number from 0 to %2, not '%3'.")
               .arg(option, QString::number(most), value(option)));
    return std::nullopt;
}

int CommandLine::refuse(const QString &complaint) const
{
    complain(QStringLiteral("%1 See 'ambrelune-cli %2 --help'.").arg(complaint, m_command));
    return ExitUsage;
}
