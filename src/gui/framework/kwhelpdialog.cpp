#include "gui/framework/kwhelpdialog.h"

#include "gui/framework/kwaccel.h"
#include "gui/framework/kwhelp.h"

#include <QPushButton>

void KWHelpDialog::finish(const QString &topic, const QPushButton *helpButton)
{
    m_topic = topic;
    if (!m_topic.isEmpty())
        addAccel(this, Qt::Key_F1, this, &KWHelpDialog::help);
    if (helpButton)
        connect(helpButton, &QPushButton::clicked, this, &KWHelpDialog::help);
    KWDialog::finish();
}

void KWHelpDialog::help()
{
    showHelpTopic(m_topic);
}
