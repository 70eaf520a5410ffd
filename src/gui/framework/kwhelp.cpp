#include "gui/framework/kwhelp.h"

#include "gui/framework/kwbusy.h"
#include "gui/framework/kwdatadirectory.h"
#include "gui/framework/kwhelpwindow.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> &rememberedDirectory()
{
    static std::optional<QString> directory;
    return directory;
}

QString &shippedDirectory()
{
    static QString directory = dataDirectory();
    return directory;
}

const QString &helpFileName()
{
    static const QString name = u"%1_%2_%3_%4.chm"_s.arg(u"ambrelune"_s)
                                    .arg(KWMainWindow::majorVersion())
                                    .arg(KWMainWindow::minorVersion())
                                    .arg(KWMainWindow::patchVersion());
    return name;
}

std::function<void(const QString &path)> &exampleOpener()
{
    static std::function<void(const QString &path)> opener;
    return opener;
}

QPointer<KWHelpWindow> theWindow;

void tellMissing(const QString &topic, const QString &path)
{
    errorBox(KWHelpWindow::tr("Unable to display topic '%1' in Help file '%2'.").arg(topic, path),
             KWHelpWindow::tr("&OK"));
}

// The name comes from a page, which must lead to the examples only.
void openExample(const QString &name)
{
    const QFileInfo file(QDir(exampleDirectory()), QFileInfo(name).fileName());
    if (!exampleOpener() || !file.isFile())
        return;
    if (QApplication::activeModalWidget()) {
        // It works on the plan that the example would replace.
        errorBox(KWHelpWindow::tr("Close the other window before you open an example."),
                 KWHelpWindow::tr("&OK"));
        return;
    }
    exampleOpener()(file.absoluteFilePath());
}

/// The one help window, made at the first use; it goes with the main window.
KWHelpWindow *helpWindow()
{
    if (theWindow)
        return theWindow;
    KWMainWindow *owner = mainWin();
    theWindow = new KWHelpWindow(owner ? owner->widget() : nullptr);
    QObject::connect(theWindow, &KWHelpWindow::pageMissing, tellMissing);
    QObject::connect(theWindow, &KWHelpWindow::exampleChosen, openExample);
    if (!owner)
        qAddPostRoutine([] { delete theWindow; });
    return theWindow;
}
} // namespace

void rememberStartDirectory(const QString &directory)
{
    rememberedDirectory() = directory.isEmpty() ? QDir::currentPath() : directory;
}

const QString &startDirectory()
{
    if (!rememberedDirectory())
        rememberStartDirectory();
    return *rememberedDirectory();
}

void setShippedHelpDirectory(const QString &directory)
{
    shippedDirectory() = directory.isEmpty() ? dataDirectory() : directory;
}

void setExampleOpener(const std::function<void(const QString &path)> &open)
{
    exampleOpener() = open;
}

QString helpFilePath()
{
    for (const QString &directory : {startDirectory(), QDir::currentPath(), shippedDirectory()}) {
        const QString path = QDir(directory).absoluteFilePath(helpFileName());
        if (QFileInfo(path).isFile())
            return path;
    }
    errorBox(KWHelpWindow::tr("Can't find help file %1 .").arg(helpFileName()),
             KWHelpWindow::tr("&OK"));
    return {};
}

bool showHelpTopic(const QString &topic)
{
    const QString path = helpFilePath();
    if (path.isEmpty())
        return false;
    const bool shown = [&] {
        const KWBusy busy;
        return helpWindow()->showPage(path, topic);
    }();
    if (!shown)
        tellMissing(topic, path);
    return shown;
}
