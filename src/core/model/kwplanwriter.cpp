#include "core/model/kwplanwriter.h"

#include "core/model/kwdocument.h"
#include "core/model/kwmodelhooks.h"
#include "core/model/kwplansettings.h"
#include "core/model/kwplantext.h"

#include <QXmlStreamWriter>

using namespace KWPlanText;

namespace {
QString settingText(int value)
{
    return fromInt(value);
}
QString settingText(bool value)
{
    return fromBool(value);
}
QString settingText(double value)
{
    return fromReal(value);
}
QString settingText(const QString &value)
{
    return value;
}
QString settingText(const QDate &value)
{
    return fromDate(value);
}
QString settingText(const QFont &value)
{
    return fromFont(value);
}
QString settingText(const QColor &value)
{
    return fromColour(value);
}

class PlanWriter
{
public:
    PlanWriter(const KWDocument &document, const KWViewSettings &views)
        : m_document(document)
        , m_views(views)
        , m_total(static_cast<int>(planSettings().size()) + document.guestCount() +
                  document.groupCount() + document.tableCount() + document.affinityCount())
        , m_xml(&m_text)
    {
    }

    QByteArray write()
    {
        m_xml.writeDTD(QStringLiteral("<!DOCTYPE %1>\n").arg(documentType));
        m_xml.setAutoFormatting(true);
        m_xml.setAutoFormattingIndent(1);
        m_xml.writeStartElement(QLatin1StringView("root"));
        writeSettings();
        writeList(QLatin1StringView("guests"), m_document.guests(),
                  [this](const KWGuest *guest) { writeGuest(*guest); });
        writeList(QLatin1StringView("groups"), m_document.groups(),
                  [this](const KWGroup *group) { writeGroup(*group); });
        writeList(QLatin1StringView("tables"), m_document.tables(),
                  [this](const KWTable *table) { writeTable(*table); });
        writeList(QLatin1StringView("affinities"), m_document.affinities(),
                  [this](const KWDocument::Affinity &pair) { writeAffinity(pair); });
        m_xml.writeEndElement();
        m_xml.writeEndDocument();
        return m_text;
    }

private:
    void attribute(QLatin1StringView name, const QString &value)
    {
        m_xml.writeAttribute(name, escaped(value));
    }

    void writeSetting(QLatin1StringView key, const QString &value)
    {
        m_xml.writeEmptyElement(key);
        attribute(QLatin1StringView("value"), value);
    }

    void writeSettings()
    {
        writeSetting(QLatin1StringView("version"), fromInt(KWPlanFields::fileVersion));
        const KWPlanFields &fields = m_document.fields();
        for (const KWPlanSetting &setting : planSettings()) {
            if (setting.target == KWPlanSetting::Target(&KWPlanFields::floorplan_colour_selected) &&
                !hasOwnSelectionColour())
                continue;
            std::visit(
                [&](auto member) {
                    writeSetting(setting.key, settingText(settingOf(fields, m_views, member)));
                },
                setting.target);
        }
        m_done = static_cast<int>(planSettings().size());
        modelHooks().progress(m_done, m_total);
    }

    /// A plan without a colour of its own for selected things follows the system's.
    bool hasOwnSelectionColour() const
    {
        const QColor colour = m_document.floorplanColourSelected();
        return colour.isValid() && colour != modelHooks().selectionColour();
    }

    template <typename List, typename Write>
    void writeList(QLatin1StringView name, const List &list, Write write)
    {
        m_xml.writeStartElement(name);
        for (const auto &item : list) {
            write(item);
            modelHooks().progress(++m_done, m_total);
        }
        m_xml.writeEndElement();
    }

    /// An element with these values, each under the name at the same place. A null value leaves
    /// its attribute out.
    template <std::size_t N>
    void writeElement(QLatin1StringView name, const std::array<QLatin1StringView, N> &names,
                      const std::array<QString, N> &values)
    {
        m_xml.writeEmptyElement(name);
        for (std::size_t i = 0; i < N; ++i) {
            if (!values[i].isNull())
                attribute(names[i], values[i]);
        }
    }

    /// A text for writeElement() that stands in the file even when it is empty.
    static QString present(const QString &text) { return text.isNull() ? QLatin1String("") : text; }

    void writeGuest(const KWGuest &guest)
    {
        const int group = m_document.indexOfGroup(guest.group());
        writeElement<guestAttributes.size()>(
            QLatin1StringView("guest"), guestAttributes,
            {present(guest.displayName()), present(guest.title()), present(guest.firstName()),
             present(guest.lastName()), present(guest.meal()), present(guest.genderString()),
             present(guest.ageString()), fromBool(guest.isLocked()), present(guest.notes()),
             fromBool(guest.isVip()), fromBool(guest.isAccepted()),
             group < 0 ? QString() : fromInt(group)});
    }

    void writeGroup(const KWGroup &group)
    {
        const KWContact &c = group.contact();
        writeElement<groupAttributes.size()>(
            QLatin1StringView("group"), groupAttributes,
            {present(c.address1), present(c.address2), present(c.city), present(c.state),
             present(c.zip), present(c.country), present(c.work_phone), present(c.home_phone),
             present(c.mobile_phone), present(c.email), present(group.name()),
             present(group.notes())});
    }

    void writeTable(const KWTable &table)
    {
        const bool custom = table.shape() == KWTable::Custom;
        const bool sided = custom || table.shape() == KWTable::Rectangular;
        QStringList assigned;
        for (const KWGuest *guest : table.seats())
            assigned.append(fromInt(m_document.indexOfGuest(guest)));
        writeElement<tableAttributes.size()>(QLatin1StringView("table"), tableAttributes,
                                             {present(table.name()), fromInt(table.shape()),
                                              sided ? fromInt(table.seatsAcross()) : QString(),
                                              sided ? fromInt(table.seatsDown()) : QString(),
                                              custom ? fromInt(table.seatsAcross2()) : QString(),
                                              custom ? fromInt(table.seatsDown2()) : QString(),
                                              present(table.notes()), present(assigned.join(u',')),
                                              fromInt(table.position().x()),
                                              fromInt(table.position().y())});
    }

    void writeAffinity(const KWDocument::Affinity &pair)
    {
        writeElement<affinityAttributes.size()>(QLatin1StringView("affinity"), affinityAttributes,
                                                {fromInt(m_document.indexOfGuest(pair.first)),
                                                 fromInt(m_document.indexOfGuest(pair.second)),
                                                 fromInt(pair.value)});
    }

    const KWDocument &m_document;
    const KWViewSettings &m_views;
    int m_done = 0;
    int m_total;
    QByteArray m_text;
    QXmlStreamWriter m_xml;
};
} // namespace

QByteArray writePlan(const KWDocument &document, const KWViewSettings &views)
{
    return PlanWriter(document, views).write();
}
