#include "core/model/kwdocument.h"
#include "core/model/kwmodelhooks.h"
#include "core/model/kwplanreader.h"
#include "core/model/kwplanwriter.h"
#include "core/model/kwsafefile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

int KWDocument::save(const QString &path, const KWViewSettings &viewSettings)
{
    bool written = false;
    {
        const EventBlock block(*this);
        written = replaceFile(path, toPlanText(viewSettings));
        if (written) {
            m_modified = false;
            m_file_name = QDir::toNativeSeparators(path);
        }
    }
    if (written)
        emit eventDocumentNameChange(m_file_name);
    modelHooks().progressFinished();
    return written ? FileOk : FileCannotWrite;
}

int KWDocument::load(const QString &path, KWViewSettings &viewSettings, bool &versionDiffers)
{
    versionDiffers = false;
    clear();
    // A backup gets no name, so that saving asks for one and never overwrites the backup.
    if (QFileInfo(path).suffix().toLower() != QLatin1StringView("kwb"))
        m_file_name = QDir::toNativeSeparators(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return FileCannotOpen;
    KWPlanReader reader;
    if (!reader.read(file))
        return FileNotAPlan;

    m_file_version = reader.fileVersion();
    versionDiffers = reader.versionDiffers();
    emit loadingGuests(reader.guestCount());
    {
        const EventBlock block(*this);
        try {
            reader.build(*this, viewSettings);
            file.close();
            m_modified = false;
            recalculateScores();
        } catch (...) {
            clear();
            throw;
        }
    }
    emit eventDocumentNameChange(m_file_name);
    emit eventModified();
    modelHooks().progressFinished();
    return FileOk;
}

QByteArray KWDocument::toPlanText(const KWViewSettings &viewSettings) const
{
    return writePlan(*this, viewSettings);
}
