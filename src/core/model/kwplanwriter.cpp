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
    void attribute(const char *name, const QString &value)
    {
        m_xml.writeAttribute(QLatin1StringView(name), escaped(value));
    }
    void attribute(const char *name, int value) { attribute(name, fromInt(value)); }
    void attribute(const char *name, bool value) { attribute(name, fromBool(value)); }

    void writeSetting(QLatin1StringView key, const QString &value)
    {
        m_xml.writeEmptyElement(key);
        attribute("value", value);
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

    void writeGuest(const KWGuest &guest)
    {
        m_xml.writeEmptyElement(QLatin1StringView("guest"));
        attribute("display_name", guest.displayName());
        attribute("title", guest.title());
        attribute("first_name", guest.firstName());
        attribute("last_name", guest.lastName());
        attribute("meal", guest.meal());
        attribute("gender", guest.genderString());
        attribute("age", guest.ageString());
        attribute("locked", guest.isLocked());
        attribute("notes", guest.notes());
        attribute("vip", guest.isVip());
        attribute("accepted", guest.isAccepted());
        if (const int group = m_document.indexOfGroup(guest.group()); group >= 0)
            attribute("group", group);
    }

    void writeGroup(const KWGroup &group)
    {
        const KWContact &contact = group.contact();
        m_xml.writeEmptyElement(QLatin1StringView("group"));
        attribute("address1", contact.address1);
        attribute("address2", contact.address2);
        attribute("city", contact.city);
        attribute("state", contact.state);
        attribute("zip", contact.zip);
        attribute("country", contact.country);
        attribute("work_phone", contact.work_phone);
        attribute("home_phone", contact.home_phone);
        attribute("mobile_phone", contact.mobile_phone);
        attribute("email", contact.email);
        attribute("name", group.name());
        attribute("notes", group.notes());
    }

    void writeTable(const KWTable &table)
    {
        const bool custom = table.shape() == KWTable::Custom;
        m_xml.writeEmptyElement(QLatin1StringView("table"));
        attribute("table", table.name());
        attribute("shape", table.shape());
        if (custom || table.shape() == KWTable::Rectangular) {
            attribute("seats_across", table.seatsAcross());
            attribute("seats_down", table.seatsDown());
        }
        if (custom) {
            attribute("seats_across_2", table.seatsAcross2());
            attribute("seats_down_2", table.seatsDown2());
        }
        attribute("notes", table.notes());
        QStringList assigned;
        for (const KWGuest *guest : table.seats())
            assigned.append(fromInt(m_document.indexOfGuest(guest)));
        attribute("assigned", assigned.join(u','));
        attribute("X", table.position().x());
        attribute("Y", table.position().y());
    }

    void writeAffinity(const KWDocument::Affinity &pair)
    {
        m_xml.writeEmptyElement(QLatin1StringView("affinity"));
        attribute("guest1", m_document.indexOfGuest(pair.first));
        attribute("guest2", m_document.indexOfGuest(pair.second));
        attribute("value", pair.value);
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
