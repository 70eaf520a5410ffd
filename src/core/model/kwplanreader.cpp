#include "core/model/kwplanreader.h"

#include "core/model/kwdocument.h"
#include "core/model/kwmodelhooks.h"

#include <QCoreApplication>
#include <QIODevice>

#include <algorithm>
#include <exception>
#include <expat.h>
#include <memory>
#include <new>
#include <string_view>
#include <type_traits>

using namespace KWPlanText;

namespace {
/// Far beyond any room. Side counts can ask for seats without naming them one by one, and a short
/// file for more than the memory holds.
constexpr qint64 maxCountedSeats = 1'000'000;
/// A plan's elements stand three deep. Deeper nesting than this is an attack on the stack.
constexpr int maxDepth = 1000;

/// The value of a setting's element.
QString valueOf(const char *const *attributes)
{
    for (; *attributes; attributes += 2) {
        if (std::string_view(*attributes) == "value")
            return unescaped(attributes[1]);
    }
    return {};
}

auto itemsOf(const QString &assigned)
{
    return QStringView(assigned).tokenize(u',', Qt::SkipEmptyParts);
}

bool isShape(int shape)
{
    return shape >= 0 && shape < KWTable::ShapeCount;
}

bool hasSides(int shape)
{
    return shape == KWTable::Rectangular || shape == KWTable::Custom;
}

/// How many seats a table element names one by one; more than a table can have are one too many.
template <typename Record>
int namedSeatsOf(const Record &record)
{
    int items = 0;
    for ([[maybe_unused]] const QStringView item : itemsOf(record["assigned"])) {
        if (++items > KWTable::maxCount)
            break;
    }
    return items;
}

/// The seats that a table element asks for.
template <typename Record>
int seatCountOf(const Record &record)
{
    const int shape = toInt(record["shape"]);
    return hasSides(shape)
               ? KWTable::seatCountFor(shape, toInt(record["seats_across"]),
                                       toInt(record["seats_down"]), toInt(record["seats_across_2"]),
                                       toInt(record["seats_down_2"]))
               : KWTable::seatCountFor(shape, namedSeatsOf(record), 0, 0, 0);
}

/// Whether a table element asks for more than a table can have. Guests would lose their seats.
template <typename Record>
bool isTooLarge(const Record &record)
{
    const auto isBeyond = [](int count) { return count > KWTable::maxCount; };
    switch (const int shape = toInt(record["shape"])) {
    case KWTable::Custom:
        if (isBeyond(toInt(record["seats_across_2"])) || isBeyond(toInt(record["seats_down_2"])))
            return true;
        [[fallthrough]];
    case KWTable::Rectangular:
        return isBeyond(toInt(record["seats_across"])) || isBeyond(toInt(record["seats_down"]));
    default:
        return isShape(shape) && isBeyond(namedSeatsOf(record));
    }
}

void assign(int &setting, const QString &text)
{
    setting = toInt(text);
}
void assign(bool &setting, const QString &text)
{
    setting = toBool(text);
}
void assign(double &setting, const QString &text)
{
    // Holds the default until a text is read.
    setting = toSize(text, setting);
}
void assign(QString &setting, const QString &text)
{
    setting = text;
}
void assign(QDate &setting, const QString &text)
{
    setting = toDate(text);
}
void assign(QFont &setting, const QString &text)
{
    if (!text.isEmpty())
        setting = toFont(text);
}
void assign(QColor &setting, const QString &text)
{
    setting = toColour(text);
}
} // namespace

/// Hands the elements of an XML text to a plan reader, and stops where the text cannot be a plan.
///
/// No exception may pass through the parser, which is not made for it.
class KWPlanReader::Parser
{
public:
    explicit Parser(KWPlanReader &reader)
        : m_reader(reader)
    {
        if (!m_parser)
            throw std::bad_alloc();
        XML_SetUserData(m_parser.get(), this);
        XML_SetStartDoctypeDeclHandler(m_parser.get(), startDocumentType);
        XML_SetEntityDeclHandler(m_parser.get(), declareEntity);
        XML_SetAttlistDeclHandler(m_parser.get(), declareAttribute);
        XML_SetElementHandler(m_parser.get(), startElement, endElement);
    }

    bool parse(QIODevice &device)
    {
        // The parser looks again at a tag that a block has cut off, so the blocks grow.
        qint64 blockSize = firstBlockSize;
        for (;; blockSize = std::min(2 * blockSize, largestBlockSize)) {
            const QByteArray block = device.read(blockSize);
            const auto status = XML_Parse(m_parser.get(), block.constData(),
                                          static_cast<int>(block.size()), block.isEmpty());
            if (m_failure)
                std::rethrow_exception(m_failure);
            if (XML_GetErrorCode(m_parser.get()) == XML_ERROR_NO_MEMORY)
                throw std::bad_alloc();
            if (status != XML_STATUS_OK)
                return false;
            if (block.isEmpty())
                return m_hasDocumentType;
        }
    }

private:
    static constexpr qint64 firstBlockSize = 64 * 1024;
    static constexpr qint64 largestBlockSize = 512 * 1024 * 1024;

    static Parser &parserOf(void *user) { return *static_cast<Parser *>(user); }
    void stop() noexcept { XML_StopParser(m_parser.get(), XML_FALSE); }

    static void startDocumentType(void *user, const char *name, const char * /*systemId*/,
                                  const char * /*publicId*/, int /*hasInternalSubset*/) noexcept
    {
        parserOf(user).m_hasDocumentType = QLatin1StringView(name) == documentType;
        if (!parserOf(user).m_hasDocumentType)
            parserOf(user).stop();
    }

    // A plan declares nothing. Declared entities and attributes serve only to make a file larger
    // than it is.
    static void declareEntity(void *user, const char * /*name*/, int /*isParameterEntity*/,
                              const char * /*value*/, int /*valueLength*/, const char * /*base*/,
                              const char * /*systemId*/, const char * /*publicId*/,
                              const char * /*notation*/) noexcept
    {
        parserOf(user).stop();
    }

    static void declareAttribute(void *user, const char * /*element*/, const char * /*attribute*/,
                                 const char * /*type*/, const char * /*defaultValue*/,
                                 int /*isRequired*/) noexcept
    {
        parserOf(user).stop();
    }

    static void startElement(void *user, const char *name, const char **attributes) noexcept
    {
        Parser &self = parserOf(user);
        if (!self.m_hasDocumentType || ++self.m_depth > maxDepth) {
            self.stop();
            return;
        }
        try {
            self.m_reader.readElement(name, attributes);
        } catch (...) {
            self.m_failure = std::current_exception();
            self.stop();
        }
    }

    static void endElement(void *user, const char * /*name*/) noexcept { --parserOf(user).m_depth; }

    KWPlanReader &m_reader;
    std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> m_parser{XML_ParserCreate(nullptr),
                                                                          &XML_ParserFree};
    bool m_hasDocumentType = false;
    int m_depth = 0;
    std::exception_ptr m_failure;
};

bool KWPlanReader::read(QIODevice &device)
{
    return Parser(*this).parse(device) && !hasTooManySeats();
}

void KWPlanReader::readElement(const char *name, const char *const *attributes)
{
    const QLatin1StringView element(name);
    if (element == QLatin1StringView("guest")) {
        m_guests.emplace_back(attributes);
    } else if (element == QLatin1StringView("group")) {
        m_groups.emplace_back(attributes);
    } else if (element == QLatin1StringView("table")) {
        m_tables.emplace_back(attributes);
    } else if (element == QLatin1StringView("affinity")) {
        const KWPlanRecord<affinityAttributes> record(attributes);
        m_affinities.push_back(
            {toInt(record["guest1"]), toInt(record["guest2"]), toInt(record["value"])});
    } else {
        // Of two equal settings the first counts.
        m_settings.try_emplace(name, valueOf(attributes));
    }
}

bool KWPlanReader::hasTooManySeats() const
{
    qint64 seats = 0;
    for (const TableRecord &record : m_tables) {
        if (isTooLarge(record))
            return true;
        if (hasSides(toInt(record["shape"])))
            seats += seatCountOf(record);
    }
    return seats > maxCountedSeats;
}

int KWPlanReader::fileVersion() const
{
    const auto found = m_settings.find("version");
    return found == m_settings.end() || found->second.isEmpty() ? KWPlanFields::fileVersion
                                                                : toInt(found->second);
}

void KWPlanReader::build(KWDocument &document, KWViewSettings &views) const
{
    const auto total = static_cast<int>(planSettings().size() + m_guests.size() + m_groups.size() +
                                        m_tables.size() + m_affinities.size());
    int done = static_cast<int>(planSettings().size());
    const auto report = [&] { modelHooks().progress(done, total); };
    const auto reportElement = [&] {
        ++done;
        report();
    };

    buildSettings(document, views);
    report();
    for (const GroupRecord &record : m_groups) {
        buildGroup(document, record);
        reportElement();
    }
    if (document.groupCount() == 0)
        document.addGroup({}, QCoreApplication::translate("KWDocument", "all"), {});
    for (const GuestRecord &record : m_guests) {
        buildGuest(document, record);
        reportElement();
    }
    for (const TableRecord &record : m_tables) {
        buildTable(document, record);
        reportElement();
    }
    for (const AffinityRecord &record : m_affinities) {
        KWGuest *a = document.guestAt(record.guest1);
        KWGuest *b = document.guestAt(record.guest2);
        if (a && b && record.value >= KWScore::Loves && record.value <= KWScore::Hates)
            document.setAffinity(a, b, record.value, false);
        reportElement();
    }
}

void KWPlanReader::buildSettings(KWDocument &document, KWViewSettings &views) const
{
    KWPlanFields fields = absentPlanFields();
    views = KWViewSettings();
    for (const KWPlanSetting &setting : planSettings()) {
        const auto found = m_settings.find(setting.key.data());
        std::visit(
            [&](auto member) {
                auto &value = settingOf(fields, views, member);
                // A font that the file does not name stays as the document has it.
                if constexpr (std::is_same_v<std::remove_reference_t<decltype(value)>, QFont>)
                    value = document.m_fields.*member;
                if (found != m_settings.end())
                    assign(value, found->second);
            },
            setting.target);
    }
    document.m_fields = fields;
}

void KWPlanReader::buildGroup(KWDocument &document, const GroupRecord &record)
{
    const KWContact contact(record["address1"], record["address2"], record["city"], record["state"],
                            record["zip"], record["country"], record["work_phone"],
                            record["home_phone"], record["mobile_phone"], record["email"]);
    document.addGroup(contact, record["name"], record["notes"]);
}

void KWPlanReader::buildGuest(KWDocument &document, const GuestRecord &record)
{
    // What is no number stands for the first.
    KWGroup *group = document.groupAt(toInt(record["group"]));
    if (!group)
        return;
    document.addGuest({.display_name = record["display_name"],
                       .title = record["title"],
                       .first_name = record["first_name"],
                       .last_name = record["last_name"],
                       .meal = record["meal"],
                       .gender = KWGuest::genderFromString(record["gender"]),
                       .age = KWGuest::ageFromString(record["age"]),
                       .locked = toBool(record["locked"]),
                       .notes = record["notes"],
                       .vip = toBool(record["vip"]),
                       .accepted = toBool(record["accepted"])},
                      group);
}

void KWPlanReader::buildTable(KWDocument &document, const TableRecord &record)
{
    const int shape = toInt(record["shape"]);
    if (!isShape(shape))
        return;
    const bool sided = hasSides(shape);
    KWTable *table = document.addTable(
        shape, record["table"], sided ? toInt(record["seats_across"]) : seatCountOf(record),
        toInt(record["seats_down"]), toInt(record["seats_across_2"]), toInt(record["seats_down_2"]),
        {toInt(record["X"]), toInt(record["Y"])}, record["notes"]);
    int seat = 0;
    for (const QStringView item : itemsOf(record["assigned"])) {
        if (seat == table->seatCount())
            break;
        if (KWGuest *guest = document.guestAt(item.toInt()))
            document.assignGuest(guest, table, seat, false);
        ++seat;
    }
}
