#include "gui/framework/kwwebpage.h"

#include "gui/framework/kwbusy.h"
#include "gui/framework/kwdatadirectory.h"
#include "gui/framework/kwmessages.h"

#include <QDesktopServices>
#include <QEvent>
#include <QFileInfo>
#include <QLabel>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace {
/// What the last message names when nothing on this desktop is in charge of web pages.
constexpr int noAssociation = 31;

void showError(const QString &text)
{
    errorBox(text, KWShowWebPage::tr("&OK"));
}

/// For desktops that Qt finds no handler on.
bool startBrowser(const QString &address)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (program.isEmpty()) {
        showError(KWShowWebPage::tr("Unable to display a web browser for %1 ( error code %2 ).")
                      .arg(address, QString::number(noAssociation)));
        return false;
    }
    // Detached, since the browser lives on when the program ends.
    if (!QProcess::startDetached(program, {address})) {
        showError(KWShowWebPage::tr("Unable to display '%1' in browser.").arg(address));
        return false;
    }
    return true;
}
} // namespace

bool showWebPage(const QString &address)
{
    const KWBusy busy;
    const QFileInfo file(address);
    const QUrl url = file.exists() ? QUrl::fromLocalFile(file.absoluteFilePath()) : QUrl(address);
    if (url.scheme().isEmpty()) {
        showError(KWShowWebPage::tr("Unknown file/URL type."));
        return false;
    }
    return QDesktopServices::openUrl(url) ||
           startBrowser(file.exists() ? file.absoluteFilePath() : address);
}

QString webPage(const QString &name)
{
    return dataDirectory() + QStringLiteral("/web/%1.html").arg(name);
}

KWShowWebPage::KWShowWebPage(QLabel *label, const QString &address)
    : QObject(label)
    , m_label(label)
    , m_address(address)
{
    label->installEventFilter(this);
}

bool KWShowWebPage::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_label || event->type() != QEvent::MouseButtonPress)
        return QObject::eventFilter(watched, event);
    showWebPage(m_address);
    return true;
}
