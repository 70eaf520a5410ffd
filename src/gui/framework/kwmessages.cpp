#include "gui/framework/kwmessages.h"

#include "gui/framework/kwbusy.h"
#include "gui/framework/kwconfigurablewarningdlgimpl.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwprompts.h"
#include "gui/framework/kwusersettings.h"

#include <QApplication>
#include <QPointer>

namespace {
/// The dialog that the message is about, if one is up.
QWidget *parentOfBoxes()
{
    if (QWidget *dialog = QApplication::activeModalWidget())
        return dialog;
    KWMainWindow *window = mainWin();
    return window ? window->widget() : nullptr;
}

int messageBox(KWMessage::Icon icon, const QString &text, QStringList buttons)
{
    buttons.removeAll(QString());
    const KWArrowCursor arrow;
    return prompts().showMessage(parentOfBoxes(),
                                 {icon, KWMainWindow::productName(), text, buttons, 0});
}
} // namespace

int warningBox(const QString &text, const QString &button0, const QString &button1,
               const QString &button2)
{
    return messageBox(KWMessage::Warning, text, {button0, button1, button2});
}

int errorBox(const QString &text, const QString &button0, const QString &button1,
             const QString &button2)
{
    return messageBox(KWMessage::Critical, text, {button0, button1, button2});
}

int configurableWarning(KWUserSettings *settings, const QString &key, const QString &text)
{
    if (!settings->warning(key))
        return 0;
    const KWArrowCursor arrow;
    // A parent that deletes itself meanwhile takes the dialog along.
    const QPointer<KWConfigurableWarningDlgImpl> dialog =
        new KWConfigurableWarningDlgImpl(parentOfBoxes(), text);
    const int button = dialog->exec();
    if (!dialog)
        return -1;
    settings->setWarning(key, dialog->showWarning());
    delete dialog;
    return button;
}
