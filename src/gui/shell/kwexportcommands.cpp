#include "gui/shell/kwexportcommands.h"

#include "core/model/kwsafefile.h"
#include "gui/floorplan/kwcanvasview.h"
#include "gui/framework/kwbusy.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"
#include "gui/framework/kwprompts.h"
#include "gui/shell/kwfilecommands.h"
#include "gui/shell/kwpanes.h"

#include <QBuffer>

#include <new>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr double exportMargin = 0.05;

/// What can be done against most failures of a picture.
QString shortOfMemory(const QString &complaint)
{
    return complaint + KWExportCommands::tr("\nYou may have insufficient memory.\n"
                                            "Try closing some other applications.");
}
} // namespace

KWExportCommands::KWExportCommands(QObject *parent, KWMainWindow *window, KWPanes *panes,
                                   const KWFileCommands *files)
    : QObject(parent)
    , m_window(window)
    , m_panes(panes)
    , m_files(files)
{
}

QString KWExportCommands::askImageFile()
{
    const QString docPath = m_files->docPath();
    const QString name = docPath.isEmpty() ? u"plan"_s : QFileInfo(docPath).baseName();
    const QList<std::pair<QString, QString>> kinds{
        {tr("PNG image file (*.png)"), u"png"_s},
        {tr("Bitmap image file (*.bmp)"), u"bmp"_s},
        {tr("JPEG image file (*.jpg)"), u"jpg"_s},
    };
    QStringList filters;
    for (const auto &kind : kinds)
        filters.append(kind.first);
    const KWFileAnswer answer =
        prompts().askFile(m_window->widget(),
                          {KWFileQuestion::Save, tr("Export image"), m_files->planDirPath() + name,
                           filters.join(u";;"), u"image export"_s});
    QString path = answer.path;
    if (path.isEmpty())
        return path;
    if (QFileInfo(path).suffix().isEmpty())
        path += u".%1"_s.arg(kinds.value(filters.indexOf(answer.filter), kinds.first()).second);
    if (QFile::exists(path) &&
        warningBox(tr("Do you wish to overwrite existing file '%1'?").arg(path), tr("&Overwrite"),
                   tr("&Cancel")) != 0)
        return {};
    return path;
}

void KWExportCommands::fileExportFloorPlan()
{
    const QString path = askImageFile();
    if (path.isEmpty())
        return;
    const KWBusy busy;
    const QString complaint = exportFloorPlan(path);
    if (!complaint.isEmpty())
        errorBox(complaint, tr("&OK"));
}

QString KWExportCommands::exportFloorPlan(const QString &path)
{
    const QString extension = QFileInfo(path).suffix().toLower();
    if (extension != u"jpg" && extension != u"png" && extension != u"bmp")
        return tr("Unknown image format '%1'").arg(extension);
    const QString format = extension == u"jpg" ? u"JPEG"_s : extension.toUpper();
    const QPixmap picture = floorPlanPicture();
    if (picture.isNull())
        return shortOfMemory(tr("Unable to convert floor plan to image."));
    QImage image;
    try {
        image = toImage(picture);
    } catch (const std::bad_alloc &) {
        return shortOfMemory(tr("Unable to export '%1' format image.").arg(format));
    }
    if (image.isNull())
        return shortOfMemory(tr("Unable to convert to '%1' format image.").arg(format));
    if (image.size() != picture.size())
        return shortOfMemory(tr("Unable to create '%1' format image.").arg(format));
    // Through memory, so that a failure leaves an older picture in its place.
    QBuffer encoded;
    encoded.open(QIODevice::WriteOnly);
    if (!image.save(&encoded, qPrintable(format), -1) || !replaceFile(path, encoded.data()))
        return shortOfMemory(tr("Unable to save to '%1' as '%2' format image.").arg(path, format));
    return {};
}

QPixmap KWExportCommands::floorPlanPicture()
{
    return m_panes->floorPlan()->canvas()->renderToPixmap(exportMargin);
}

QImage KWExportCommands::toImage(const QPixmap &picture)
{
    return picture.toImage();
}
