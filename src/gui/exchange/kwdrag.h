#pragma once

#include <QDrag>
#include <QMimeData>

class KWDocument;
class KWGuest;
class KWTable;

/// What a KWDrag carries: one payload of one type, whose name matches in any letter case. An empty
/// payload is listed among the formats but not there.
class KWDragData : public QMimeData
{
    Q_OBJECT

public:
    /// `fileName` is the plan's in full, for drops in this process.
    KWDragData(const QString &mimeType, const QByteArray &payload, const QString &fileName);

    QString fileName() const { return m_fileName; }

    QStringList formats() const override;
    bool hasFormat(const QString &mimeType) const override;

protected:
    QVariant retrieveData(const QString &mimeType, QMetaType type) const override;

private:
    QString m_mimeType;
    QByteArray m_data;
    QString m_fileName;
};

/// A drag of guests or of a table between the panes of one plan. Owned as any QDrag: Qt deletes it
/// behind its exec().
///
/// It carries no objects but the plan's file name and their list positions, in Latin-1 with "#"
/// between: "/plans/ann.kw#0#3". So a drop finds nothing in a plan of another name, nothing in
/// another process if the name has letters that Latin-1 lacks, and nothing at all in a plan whose
/// path has a "#" in it.
class KWDrag : public QDrag
{
    Q_OBJECT

public:
    static constexpr QLatin1StringView GuestType{"application/ambrelune.guest"};
    static constexpr QLatin1StringView TableType{"application/ambrelune.table"};

    /// What is not of the plan is left out of the payload.
    KWDrag(const KWDocument *document, const QList<KWGuest *> &guests, QWidget *source);
    KWDrag(const KWDocument *document, const KWTable *table, QWidget *source);

    /// The guests in the drag's order, each as often as it names them. What is no number or no
    /// position of this plan is passed over.
    static QList<KWGuest *> decodeGuests(const QMimeData *source, const KWDocument *document);
    /// Null unless the drag names exactly one position, and that one is a table of this plan.
    static KWTable *decodeTable(const QMimeData *source, const KWDocument *document);
};
