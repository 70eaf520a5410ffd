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
    return file.open(QIODevice::ReadOnly) ? readFrom(file, viewSettings, versionDiffers)
                                          : FileCannotOpen;
}

int KWDocument::load(QIODevice &device, KWViewSettings &viewSettings, bool &versionDiffers)
{
    versionDiffers = false;
    clear();
    return readFrom(device, viewSettings, versionDiffers);
}

int KWDocument::readFrom(QIODevice &device, KWViewSettings &viewSettings, bool &versionDiffers)
{
    KWPlanReader reader;
    if (!reader.read(device))
        return FileNotAPlan;

    m_file_version = reader.fileVersion();
    versionDiffers = reader.versionDiffers();
    emit loadingGuests(reader.guestCount());
    {
        const EventBlock block(*this);
        try {
            reader.build(*this, viewSettings);
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
