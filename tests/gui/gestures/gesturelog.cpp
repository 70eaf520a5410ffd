#include "gesturelog.h"

using namespace Qt::StringLiterals;

GestureLog::GestureLog()
    : m_file(qEnvironmentVariable("AMBRELUNE_GESTURES_LOG"))
{
    if (!m_file.fileName().isEmpty() && !m_file.open(QIODevice::Append))
        qFatal("cannot write %s", qPrintable(m_file.fileName()));
}

void GestureLog::begin(int step, const QString &gesture)
{
    m_gestures.append(u"%1. %2"_s.arg(QString::number(step), gesture));
    write(m_gestures.last());
}

void GestureLog::note(const QString &detail)
{
    const QString line = u"      "_s + QString(detail).replace(u'\n', u' ');
    if (!m_gestures.isEmpty())
        m_gestures.last() += u'\n' + line;
    write(line);
}

QString GestureLog::last(int count) const
{
    return m_gestures.mid(std::max<qsizetype>(0, m_gestures.size() - count)).join(u'\n');
}

void GestureLog::write(const QString &line)
{
    if (!m_file.isOpen())
        return;
    m_file.write(line.toUtf8() + '\n');
    m_file.flush();
}
