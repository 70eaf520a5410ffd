#include "kwmessages.h"

#include "kwbusy.h"
#include "kwmainwindow.h"
#include "kwprompts.h"

namespace {

int messageBox(KWMessage::Icon icon, const QString &text, QStringList buttons)
{
    buttons.removeAll(QString());
    const KWArrowCursor arrow;
    KWMainWindow *window = mainWin();
    return prompts().showMessage(window ? window->widget() : nullptr,
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
