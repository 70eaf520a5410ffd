#include "gui/exchange/kwdrag.h"

#include "core/model/kwdocument.h"
#include "gui/appearance/kwpixmaps.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace {
constexpr char Separator = '#';

/// The plan's file name as a payload can carry it: what Latin-1 lacks is a "?".
QByteArray carriedName(const KWDocument *document)
{
    return document->fileName().toLatin1();
}

QByteArray payload(const KWDocument *document, const QList<int> &positions)
{
    QByteArray result = carriedName(document);
    for (const int position : positions) {
        if (position >= 0)
            result.append(Separator).append(QByteArray::number(position));
    }
    return result;
}

QList<int> positionsOf(const QList<KWGuest *> &guests, const KWDocument *document)
{
    QList<int> result;
    result.reserve(guests.size());
    for (const KWGuest *guest : guests)
        result.append(document->indexOfGuest(guest));
    return result;
}

/// Whether a drag comes from a plan of this name. `sender` is the name that its payload carries.
bool comesFrom(const KWDocument *document, const QMimeData *source, const QByteArray &sender)
{
    const QString name = document->fileName().toLower();
    const QByteArray carried = carriedName(document);
    if (QString::fromLatin1(sender).toLower() != QString::fromLatin1(carried).toLower())
        return false;
    // Names that differ only in letters that the payload cannot carry look the same in it.
    if (const auto *own = qobject_cast<const KWDragData *>(source))
        return own->fileName().toLower() == name;
    return QString::fromLatin1(carried).toLower() == name;
}

/// The numbers behind the file name, -1 for what is none; nothing unless the name is this plan's.
QList<int> decode(const QMimeData *source, QLatin1StringView mimeType, const KWDocument *document)
{
    if (!source || !source->hasFormat(mimeType))
        return {};
    const QByteArray data = source->data(mimeType);
    const qsizetype nameEnd = data.indexOf(Separator);
    if (nameEnd < 0)
        return {};
    if (!comesFrom(document, source, data.first(nameEnd)))
        return {};

    QList<int> result;
    const QLatin1StringView numbers = QLatin1StringView(data).sliced(nameEnd + 1);
    for (const QLatin1StringView part : numbers.tokenize(QLatin1Char(Separator))) {
        bool isNumber = false;
        const int value = part.toInt(&isNumber);
        result.append(isNumber ? value : -1);
    }
    return result;
}

/// Drawn for the screen on which the drag begins.
const KWPixmaps &pixmapsFor(const QWidget *source)
{
    return KWPixmaps::instance(source ? source->devicePixelRatioF() : 0);
}
} // namespace

KWDragData::KWDragData(const QString &mimeType, const QByteArray &payload, const QString &fileName)
    : m_mimeType(mimeType)
    , m_data(payload)
    , m_fileName(fileName)
{
}

QStringList KWDragData::formats() const
{
    return {m_mimeType};
}

bool KWDragData::hasFormat(const QString &mimeType) const
{
    return !m_data.isEmpty() && mimeType.toLower() == m_mimeType.toLower();
}

QVariant KWDragData::retrieveData(const QString &mimeType, QMetaType /*type*/) const
{
    return hasFormat(mimeType) ? m_data : QVariant();
}

KWDrag::KWDrag(const KWDocument *document, const QList<KWGuest *> &guests, QWidget *source)
    : QDrag(source)
{
    setObjectName("drag guests"_L1);
    setMimeData(new KWDragData(GuestType, payload(document, positionsOf(guests, document)),
                               document->fileName()));
    setPixmap(pixmapsFor(source).dragGuest());
}

KWDrag::KWDrag(const KWDocument *document, const KWTable *table, QWidget *source)
    : QDrag(source)
{
    setObjectName("drag table"_L1);
    setMimeData(new KWDragData(TableType, payload(document, {document->indexOfTable(table)}),
                               document->fileName()));
    setPixmap(pixmapsFor(source).dragTable());
}

QList<KWGuest *> KWDrag::decodeGuests(const QMimeData *source, const KWDocument *document)
{
    QList<KWGuest *> guests;
    for (const int position : decode(source, GuestType, document)) {
        if (KWGuest *guest = document->guestAt(position))
            guests.append(guest);
    }
    return guests;
}

KWTable *KWDrag::decodeTable(const QMimeData *source, const KWDocument *document)
{
    const QList<int> positions = decode(source, TableType, document);
    return positions.size() == 1 ? document->tableAt(positions.first()) : nullptr;
}
