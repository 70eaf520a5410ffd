#include "randomprompts.h"

#include "dice.h"
#include "gesturelog.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

RandomPrompts::RandomPrompts(Dice &dice, GestureLog &log, const QStringList &toOpen,
                             const QStringList &toSave)
    : m_dice(dice)
    , m_log(log)
    , m_toOpen(toOpen)
    , m_toSave(toSave)
{
    setPrompts(this);
}

RandomPrompts::~RandomPrompts()
{
    setPrompts(nullptr);
}

int RandomPrompts::showMessage(QWidget *, const KWMessage &message)
{
    const int count = static_cast<int>(message.buttons.size());
    const int button = refuses ? count - 1 : m_dice.below(count);
    m_log.note(u"\"%1\": %2"_s.arg(message.text, message.buttons.value(button)));
    return button;
}

QString RandomPrompts::pathFor(const KWFileQuestion &question)
{
    if (m_dice.oneIn(4))
        return {};
    if (question.mode == KWFileQuestion::Open)
        return m_dice.oneOf(m_toOpen);
    if (question.name != u"image export"_s)
        return m_dice.oneOf(m_toSave);
    const QStringList names{u"picture"_s, u"picture.png"_s, u"picture.jpg"_s, u"picture.tiff"_s,
                            u"missing/picture.bmp"_s};
    return QFileInfo(m_toSave.first()).path() + u'/' + m_dice.oneOf(names);
}

KWFileAnswer RandomPrompts::askFile(QWidget *, const KWFileQuestion &question)
{
    const QString path = pathFor(question);
    m_log.note(u"%1: \"%2\""_s.arg(question.caption, path));
    return {path, m_dice.oneOf(question.filters.split(u";;"_s))};
}

std::optional<QFont> RandomPrompts::askFont(QWidget *, const QFont &start)
{
    if (m_dice.oneIn(3))
        return std::nullopt;
    QFont font = start;
    font.setPointSize(6 + m_dice.below(12));
    m_log.note(u"a font of %1 points"_s.arg(font.pointSize()));
    return font;
}

std::optional<QColor> RandomPrompts::askColour(QWidget *, const QColor &)
{
    if (m_dice.oneIn(3))
        return std::nullopt;
    const int red = m_dice.below(256);
    const int green = m_dice.below(256);
    return QColor(red, green, m_dice.below(256));
}

bool RandomPrompts::askPrinter(QWidget *, QPrinter &)
{
    return false;
}
