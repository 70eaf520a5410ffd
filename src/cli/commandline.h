#pragma once

#include <QCommandLineParser>

#include <optional>

/// The command line of one command: the toolkit's parser with this tool's exit statuses. After
/// parse() has returned a status, the program should end with it.
class CommandLine
{
public:
    /// The description is for the help text, in lines of its own.
    CommandLine(const QString &command, const QString &description);

    void addOption(const QCommandLineOption &option) { m_parser.addOption(option); }
    /// Adds -o and --output, which the command then needs. `what` it writes is a sentence.
    void addOutputOption(const QString &what = QStringLiteral("The plan file to write; \"-\" is "
                                                              "standard output."));

    /// Reads the arguments: all options must be known and exactly one plan be named. Prints the
    /// help text if asked to. Without a result the command may go on.
    std::optional<int> parse(const QStringList &arguments);

    QString plan() const { return m_parser.positionalArguments().at(1); }
    QString output() const { return m_parser.value(QStringLiteral("output")); }
    bool isSet(const QString &option) const { return m_parser.isSet(option); }
    QString value(const QString &option) const { return m_parser.value(option); }
    /// An option's whole number in least..most; complains and gives nothing if it is not one.
    std::optional<qint64> number(const QString &option, qint64 least, qint64 most) const;
    /// Which of some words an option is; complains and gives nothing if it is none of them.
    std::optional<int> word(const QString &option, const QStringList &words) const;

    /// Prints one line of complaint and returns ExitUsage.
    int refuse(const QString &complaint) const;

private:
    QString helpText() const;

    QCommandLineParser m_parser;
    QString m_command;
    QString m_description;
    bool m_needsOutput = false;
};

/// Two words or more as they stand in a sentence: "red, green or blue".
QString alternatives(const QStringList &words);
