#include "gui/dialogs/kwaboutdlgimpl.h"

#include "gui/appearance/kwpixmaps.h"
#include "gui/dialogs/kwbuildstamp.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwwebpage.h"
#include "ui_kwaboutdlg.h"

#include <QPainter>

namespace {

/// `text` in the widget's font, `scale` times as large, behind an icon if there is one. In the
/// colour of that role, and underlined if it is that of links.
QPixmap titlePicture(const QWidget *widget, const QString &text, qreal scale,
                     QPalette::ColorRole role, const QPixmap &icon = {})
{
    QFont font = widget->font();
    font.setBold(true);
    font.setUnderline(role == QPalette::Link);
    font.setPointSizeF(QFontInfo(font).pointSizeF() * scale);
    const QFontMetrics metrics(font);
    const QSize iconSize = icon.deviceIndependentSize().toSize();
    const int textLeft = icon.isNull() ? 0 : iconSize.width() + metrics.averageCharWidth();
    const QSize size(textLeft + metrics.horizontalAdvance(text) + metrics.averageCharWidth() / 2,
                     qMax(iconSize.height(), metrics.height()));

    QPixmap picture(size * widget->devicePixelRatioF());
    picture.setDevicePixelRatio(widget->devicePixelRatioF());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.drawPixmap(0, (size.height() - iconSize.height()) / 2, icon);
    painter.setFont(font);
    painter.setPen(widget->palette().color(role));
    painter.drawText(QRect(QPoint(textLeft, 0), size), Qt::AlignLeft | Qt::AlignVCenter, text);
    return picture;
}
} // namespace

KWAboutDlgImpl::KWAboutDlgImpl(QWidget *parent)
    : KWDialog(parent)
    , m_ui(std::make_unique<Ui::KWAboutDlg>())
{
    m_ui->setupUi(this);
    m_ui->m_versionLabel->setText(KWMainWindow::versionText());
    m_ui->m_buildLabel->setText(buildStamp());
    drawPictures();
    new KWShowWebPage(m_ui->m_productLabel, webPage(QStringLiteral("home")));
    new KWShowWebPage(m_ui->m_veltraceLabel, webPage(QStringLiteral("veltrace")));
    new KWShowWebPage(m_ui->m_toolkitLabel, webPage(QStringLiteral("toolkit")));
    finish();
}

KWAboutDlgImpl::~KWAboutDlgImpl() = default;

void KWAboutDlgImpl::drawPictures()
{
    m_ui->m_productLabel->setPixmap(
        titlePicture(this, KWMainWindow::productName(), 2.2, QPalette::WindowText,
                     KWPixmaps::instance(devicePixelRatioF()).application()));
    m_ui->m_veltraceLabel->setPixmap(
        titlePicture(this, QStringLiteral("Veltrace"), 1.2, QPalette::Link));
    m_ui->m_toolkitLabel->setPixmap(titlePicture(this, tr("Built with Qt"), 1.2, QPalette::Link));
}

void KWAboutDlgImpl::languageChange()
{
    m_ui->retranslateUi(this);
    drawPictures();
}

void KWAboutDlgImpl::changeEvent(QEvent *event)
{
    KWDialog::changeEvent(event);
    switch (event->type()) {
    case QEvent::PaletteChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
        drawPictures();
        break;
    default:
        break;
    }
}
