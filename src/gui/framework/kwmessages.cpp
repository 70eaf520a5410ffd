#include "kwmessages.h"

#include "kwbusy.h"
#include "kwconfigurablewarningdlgimpl.h"
#include "kwmainwindow.h"
#include "kwprompts.h"
#include "kwusersettings.h"

#include <QApplication>

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
    KWConfigurableWarningDlgImpl dialog(parentOfBoxes(), text);
    const int button = dialog.exec();
    settings->setWarning(key, dialog.showWarning());
    return button;
}
