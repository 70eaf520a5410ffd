#include "support/eventlog.h"

#include "core/model/kwdocument.h"

namespace {
QString text(const KWGuest *guest)
{
    return guest ? guest->displayName() : QStringLiteral("null");
}
QString text(const KWGroup *group)
{
    return group ? group->name() : QStringLiteral("null");
}
QString text(const KWTable *table)
{
    return table ? table->name() : QStringLiteral("null");
}
QString text(int number)
{
    return QString::number(number);
}
QString text(const QString &string)
{
    return string;
}
} // namespace

EventLog::EventLog(KWDocument &document)
{
    const auto log = [&]<typename... Args>(const char *name, void (KWDocument::*signal)(Args...)) {
        connect(&document, signal, this, [this, name](Args... args) {
            m_events.append(QLatin1StringView(name) + u'(' + QStringList{text(args)...}.join(u',') +
                            u')');
        });
    };
#define LOG(name) log(#name, &KWDocument::name)
    LOG(eventNewGuest);
    LOG(eventEditGuest);
    LOG(eventBeforeDeleteGuest);
    LOG(eventAfterDeleteGuest);
    LOG(loadingGuests);
    LOG(eventNewGroup);
    LOG(eventEditGroup);
    LOG(eventGuestChangeGroup);
    LOG(eventBeforeDeleteGroup);
    LOG(eventAfterDeleteGroup);
    LOG(eventEditSeat);
    LOG(eventEditAffinity);
    LOG(eventNewTable);
    LOG(eventEditTable);
    LOG(eventReorderTables);
    LOG(eventBeforeDeleteTable);
    LOG(eventAfterDeleteTable);
    LOG(eventClear);
    LOG(eventRefresh);
    LOG(eventPrepareAutoLayout);
    LOG(eventSimpleAutoLayout);
    log("eventScoreChange", qOverload<KWTable *>(&KWDocument::eventScoreChange));
    log("eventScoreChange", qOverload<>(&KWDocument::eventScoreChange));
    LOG(eventDocumentNameChange);
    LOG(eventModified);
    LOG(error);
#undef LOG
}

QStringList EventLog::take()
{
    return std::exchange(m_events, {});
}
