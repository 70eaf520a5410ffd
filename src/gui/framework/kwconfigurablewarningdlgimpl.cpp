#include "gui/framework/kwconfigurablewarningdlgimpl.h"

#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessagetext.h"
#include "ui_kwconfigurablewarningdlg.h"

#include <QStyle>

KWConfigurableWarningDlgImpl::KWConfigurableWarningDlgImpl(QWidget *parent, const QString &message,
                                                           const QStringList &buttons,
                                                           bool showWarning)
    : KWDialog(parent)
    , m_ui(std::make_unique<Ui::KWConfigurableWarningDlg>())
{
    m_ui->setupUi(this);
    setWindowTitle(KWMainWindow::productName());
    if (KWMainWindow *window = mainWin())
        setWindowIcon(window->widget()->windowIcon());
    const int iconSize = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    m_ui->m_iconLabel->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).pixmap(iconSize));
    m_ui->m_message->setText(messageText(message));
    fitMessage();
    setButtons(buttons);
    m_ui->m_showWarningCheckBox->setChecked(showWarning);
    connect(m_ui->m_button1, &QPushButton::clicked, this,
            &KWConfigurableWarningDlgImpl::button1Pressed);
    connect(m_ui->m_button2, &QPushButton::clicked, this,
            &KWConfigurableWarningDlgImpl::button2Pressed);
    connect(m_ui->m_button3, &QPushButton::clicked, this,
            &KWConfigurableWarningDlgImpl::button3Pressed);
    finish();
    // Not the box, where a blank meant for the button would switch the warning off.
    m_ui->m_button1->setFocus();
}

KWConfigurableWarningDlgImpl::~KWConfigurableWarningDlgImpl() = default;

bool KWConfigurableWarningDlgImpl::showWarning() const
{
    return m_ui->m_showWarningCheckBox->isChecked();
}

void KWConfigurableWarningDlgImpl::button1Pressed()
{
    done(0);
}

void KWConfigurableWarningDlgImpl::button2Pressed()
{
    done(1);
}

void KWConfigurableWarningDlgImpl::button3Pressed()
{
    done(2);
}

void KWConfigurableWarningDlgImpl::reject()
{
    done(m_ui->m_button3->parentWidget() == this ? 2 : 1);
}

// A label that wraps asks for a narrow block of text. Short lines should stand as written, and long
// ones break only where they become hard to read. The height is given as well, or a small screen
// would cut the last lines.
void KWConfigurableWarningDlgImpl::fitMessage()
{
    QLabel *message = m_ui->m_message;
    const QFontMetrics metrics = message->fontMetrics();
    const int asWritten = metrics.size(0, message->text()).width();
    const int width = std::min(asWritten, 80 * metrics.averageCharWidth());
    message->setMinimumSize(width, message->heightForWidth(width));
}

void KWConfigurableWarningDlgImpl::changeEvent(QEvent *event)
{
    KWDialog::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitMessage();
}

void KWConfigurableWarningDlgImpl::setButtons(const QStringList &texts)
{
    QPushButton *const buttons[] = {m_ui->m_button1, m_ui->m_button2, m_ui->m_button3};
    for (int i = 0; i < 3; ++i) {
        const QString text = texts.value(i);
        if (!text.isEmpty())
            buttons[i]->setText(text);
    }
    // Readers tell of hidden buttons, too.
    if (texts.value(2).isEmpty())
        m_ui->m_button3->setParent(&m_removed);
}
