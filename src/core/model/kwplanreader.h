#pragma once

#include "core/model/kwplanrecord.h"
#include "core/model/kwplansettings.h"

#include <QString>

#include <map>
#include <string>
#include <vector>

class KWDocument;
class QIODevice;

/// Reads a plan file: first the whole text into plain records, so that a text that is no plan
/// changes nothing, then the records into a document.
///
/// Elements count wherever they stand. What a plan cannot hold is dropped without a word; only a
/// text that is no XML, has another document type, declares entities or attributes, nests far
/// deeper than plans do, or asks for more seats than a table or any room holds is refused.
class KWPlanReader
{
public:
    /// False if the device does not hold a plan.
    bool read(QIODevice &device);

    int guestCount() const { return static_cast<int>(m_guests.size()); }
    /// The version that the file says it has; the one that this program writes if it says none.
    int fileVersion() const;
    bool versionDiffers() const { return fileVersion() != KWPlanFields::fileVersion; }

    /// Fills an empty document, and the view settings. Reports progress for each element.
    void build(KWDocument &document, KWViewSettings &views) const;

private:
    using GuestRecord = KWPlanRecord<KWPlanText::guestAttributes>;
    using GroupRecord = KWPlanRecord<KWPlanText::groupAttributes>;
    using TableRecord = KWPlanRecord<KWPlanText::tableAttributes>;
    struct AffinityRecord
    {
        int guest1;
        int guest2;
        int value;
    };

    class Parser;

    void readElement(const char *name, const char *const *attributes);
    bool hasTooManySeats() const;
    void buildSettings(KWDocument &document, KWViewSettings &views) const;
    static void buildGuest(KWDocument &document, const GuestRecord &record);
    static void buildGroup(KWDocument &document, const GroupRecord &record);
    static void buildTable(KWDocument &document, const TableRecord &record);

    std::map<std::string, QString, std::less<>> m_settings;
    std::vector<GuestRecord> m_guests;
    std::vector<GroupRecord> m_groups;
    std::vector<TableRecord> m_tables;
    std::vector<AffinityRecord> m_affinities;
};
