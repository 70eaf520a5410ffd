#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// Puts every text of the program into brackets while it lives.
class BracketTranslator : public QTranslator
{
public:
    BracketTranslator() { QCoreApplication::installTranslator(this); }
    ~BracketTranslator() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *text, const char *, int) const override
    {
        return QStringLiteral("[%1]").arg(QString::fromUtf8(text));
    }
};
