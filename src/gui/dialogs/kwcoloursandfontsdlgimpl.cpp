#include "gui/dialogs/kwcoloursandfontsdlgimpl.h"

#include "core/model/kwdocument.h"
#include "gui/appearance/kwcolourpreview.h"
#include "gui/framework/kwdatadirectory.h"
#include "gui/framework/kwgetstringdlgimpl.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"
#include "gui/framework/kwprompts.h"
#include "gui/framework/kwwebpage.h"
#include "ui_kwcoloursandfontsdlg.h"

#include <QPainter>
#include <QTextCursor>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

using Mode = KWPlanColours::Mode;

/// A button and the colour that it changes.
struct Part
{
    KWColourButton *button;
    QColor KWColours::*colour;
};

QList<Part> parts(const Ui::KWColoursAndFontsDlg &ui, Mode mode)
{
    using C = KWColours;
    if (mode != Mode::FloorPlan)
        return {{ui.m_chartBackgroundColourButton, &C::inside},
                {ui.m_chartTextColourButton, &C::tableText}};
    return {
        {ui.m_seatsColourButton, &C::seats},        {ui.m_seatEdgeColourButton, &C::seatsEdge},
        {ui.m_tablesColourButton, &C::tables},      {ui.m_tableEdgeColourButton, &C::tablesEdge},
        {ui.m_insideColourButton, &C::inside},      {ui.m_outsideColourButton, &C::outside},
        {ui.m_seatTextColourButton, &C::seatsText}, {ui.m_tableTextColourButton, &C::tableText},
        {ui.m_selectedColourButton, &C::selected}};
}

constexpr QSize themeIconSize(31, 14);

/// The theme's room, table and seats, side by side.
QIcon themeIcon(const KWColours &colours, qreal pixelRatio)
{
    QPixmap picture(themeIconSize * pixelRatio);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(Qt::gray);
    QRect part(0, 0, themeIconSize.width() / 3, themeIconSize.height() - 1);
    for (const QColor &colour : {colours.inside, colours.tables, colours.seats}) {
        painter.setBrush(colour);
        painter.drawRect(part);
        part.translate(part.width(), 0);
    }
    QIcon icon(picture);
    // Or it would be tinted where it is selected.
    icon.addPixmap(picture, QIcon::Selected);
    return icon;
}
} // namespace

KWColoursAndFontsDlgImpl::KWColoursAndFontsDlgImpl(QWidget *parent, KWDocument *document, Mode mode)
    : KWHelpDialog(parent)
    , m_ui(std::make_unique<Ui::KWColoursAndFontsDlg>())
    , m_document(document)
    , m_mode(mode)
    , m_themes(userDataDirectory(), dataDirectory() + u"/themes"_s)
{
    m_ui->setupUi(this);
    m_ui->m_themeListBox->setIconSize(themeIconSize);
    connectParts();
    const KWColours colours = KWPlanColours::coloursOf(*m_document, m_mode);
    // A plan that has no such colour is given the application's.
    if (m_mode == FloorPlan)
        m_document->setFloorplanColourSelected(colours.selected);
    showColours(colours);
    hideUnused();
    updatePreview();
    listThemes();
    finish(u"Fonts_and_colours_window.htm"_s, m_ui->m_helpButton);
}

KWColoursAndFontsDlgImpl::~KWColoursAndFontsDlgImpl() = default;

void KWColoursAndFontsDlgImpl::connectParts()
{
    using Dlg = KWColoursAndFontsDlgImpl;
    const auto &ui = *m_ui;
    for (const Part &part : parts(ui, m_mode))
        connect(part.button, &KWColourButton::colourChanged, this, &Dlg::updatePreview);
    connect(ui.m_fontButton, &QPushButton::clicked, this, &Dlg::changeFont);
    connect(ui.m_moreFontsButton, &QPushButton::clicked, this, &Dlg::moreFonts);
    connect(ui.m_defaultButton, &QPushButton::clicked, this, &Dlg::setDefault);
    connect(ui.m_themeListBox, &QListWidget::currentItemChanged, this, &Dlg::updateButtonStatus);
    connect(ui.m_themeListBox, &QListWidget::currentItemChanged, this, &Dlg::selectCurrentTheme);
    connect(ui.m_themeListBox, &QListWidget::itemSelectionChanged, this, &Dlg::selectCurrentTheme);
    connect(ui.m_themeListBox, &QListWidget::itemDoubleClicked, this, &Dlg::loadTheme);
    connect(ui.m_loadThemeButton, &QPushButton::clicked, this, &Dlg::loadTheme);
    connect(ui.m_saveThemeButton, &QPushButton::clicked, this, &Dlg::saveTheme);
    connect(ui.m_deleteThemeButton, &QPushButton::clicked, this, &Dlg::deleteTheme);
    connect(ui.m_okButton, &QPushButton::clicked, this, &Dlg::apply);
}

void KWColoursAndFontsDlgImpl::hideUnused()
{
    using Widgets = QList<QWidget *>;
    const auto &ui = *m_ui;
    const Widgets ofCharts{ui.m_chartBackgroundLabel, ui.m_chartBackgroundColourButton,
                           ui.m_chartTextLabel, ui.m_chartTextColourButton};
    const Widgets ofFloorPlan{ui.m_insideLabel,
                              ui.m_outsideLabel,
                              ui.m_textLabel,
                              ui.m_tableLabel,
                              ui.m_tablesColourButton,
                              ui.m_tableEdgeColourButton,
                              ui.m_tableTextColourButton,
                              ui.m_seatLabel,
                              ui.m_seatsColourButton,
                              ui.m_seatEdgeColourButton,
                              ui.m_seatTextColourButton,
                              ui.m_drawAreaLabel,
                              ui.m_insideColourButton,
                              ui.m_outsideColourButton,
                              ui.m_selectedLabel,
                              ui.m_selectedColourButton};
    for (QWidget *widget : m_mode == FloorPlan ? ofCharts : ofFloorPlan)
        widget->hide();
}

void KWColoursAndFontsDlgImpl::showColours(const KWColours &colours)
{
    for (const Part &part : parts(*m_ui, m_mode))
        part.button->setColour(colours.*part.colour);
    m_font = colours.font;
}

KWColours KWColoursAndFontsDlgImpl::shownColours() const
{
    KWColours colours = KWPlanColours::coloursOf(*m_document, m_mode);
    for (const Part &part : parts(*m_ui, m_mode))
        colours.*part.colour = part.button->colour();
    colours.font = m_font;
    return colours;
}

void KWColoursAndFontsDlgImpl::makePreview()
{
    if (m_mode == FloorPlan) {
        m_preview = new KWColourPreview(m_ui->m_frame);
        m_ui->m_frame->layout()->addWidget(m_preview);
    } else {
        m_textView = new QTextEdit(m_ui->m_frame);
        m_textView->setReadOnly(true);
        m_textView->setFocusPolicy(Qt::NoFocus);
        m_textView->setFrameShape(QFrame::NoFrame);
        m_ui->m_frame->layout()->addWidget(m_textView);
    }
    showPreviewTexts();
}

void KWColoursAndFontsDlgImpl::showPreviewTexts()
{
    if (m_preview) {
        m_preview->setToolTip(tr("Floor plan preview"));
        return;
    }
    m_textView->setToolTip(tr("Chart preview"));
    m_textView->setHtml(m_mode == TableChart
                            ? tr("<b>table</b><br/>guest<br/>guest<br/>guest<br/>guest<br/>guest")
                            : tr("<b>Guest Table</b><br/>guest table<br/>guest table<br/>"
                                 "guest table<br/>guest table"));
}

void KWColoursAndFontsDlgImpl::updatePreview()
{
    setUpdatesEnabled(false);
    if (!m_preview && !m_textView)
        makePreview();
    const KWColours colours = shownColours();
    if (m_preview) {
        m_preview->setColours(colours);
    } else {
        m_textView->setFont(colours.font);
        QPalette palette = m_textView->palette();
        palette.setColor(QPalette::Base, colours.inside);
        m_textView->setPalette(palette);
        QTextCharFormat format;
        format.setForeground(colours.tableText);
        QTextCursor all(m_textView->document());
        all.select(QTextCursor::Document);
        all.mergeCharFormat(format);
    }
    setUpdatesEnabled(true);
}

void KWColoursAndFontsDlgImpl::apply()
{
    if (KWMainWindow *window = mainWin())
        window->saveUndoState(tr("Change colours and fonts"));
    const KWColours before = KWPlanColours::coloursOf(*m_document, m_mode);
    KWPlanColours::setColours(*m_document, m_mode, shownColours());
    if (KWPlanColours::coloursOf(*m_document, m_mode) != before) {
        // Or closing would lose them without a question.
        m_document->setModified(true);
        m_document->announceModified();
    }
    accept();
}

void KWColoursAndFontsDlgImpl::setDefault()
{
    showColours(KWColours());
    updatePreview();
}

void KWColoursAndFontsDlgImpl::changeFont()
{
    const std::optional<QFont> font = prompts().askFont(this, m_font);
    if (!font)
        return;
    m_font = *font;
    updatePreview();
}

void KWColoursAndFontsDlgImpl::moreFonts()
{
    showWebPage(webPage(u"fonts"_s));
}

void KWColoursAndFontsDlgImpl::listThemes()
{
    m_themes.takeUpdates();
    QListWidget *list = m_ui->m_themeListBox;
    list->clear();
    for (const KWTheme &theme : m_themes.themes())
        list->addItem(
            new QListWidgetItem(themeIcon(theme.colours, devicePixelRatioF()), theme.name));
    updateButtonStatus();
}

QString KWColoursAndFontsDlgImpl::currentTheme() const
{
    const QListWidgetItem *item = m_ui->m_themeListBox->currentItem();
    return item ? item->text() : QString();
}

// The current theme is the selected one, also where the list makes one current by itself.
void KWColoursAndFontsDlgImpl::selectCurrentTheme()
{
    if (QListWidgetItem *item = m_ui->m_themeListBox->currentItem())
        item->setSelected(true);
}

void KWColoursAndFontsDlgImpl::updateButtonStatus()
{
    const bool hasTheme = m_ui->m_themeListBox->currentItem();
    m_ui->m_loadThemeButton->setEnabled(hasTheme);
    m_ui->m_deleteThemeButton->setEnabled(hasTheme);
}

void KWColoursAndFontsDlgImpl::loadTheme()
{
    const QString name = currentTheme();
    if (name.isEmpty())
        return;
    KWTheme theme;
    const KWThemeFile::Result result = m_themes.load(name, theme);
    if (result == KWThemeFile::Unreadable)
        errorBox(tr("Unable to read theme from '%1'").arg(m_themes.path()), tr("&OK"));
    // Another window of the program has deleted it.
    if (result == KWThemeFile::NotFound)
        listThemes();
    if (result != KWThemeFile::Done)
        return;
    showColours(theme.colours);
    updatePreview();
}

/// Empty if the user thinks better of it. What was typed in vain is there again.
QString KWColoursAndFontsDlgImpl::askThemeName()
{
    QString typed = currentTheme();
    while (true) {
        KWGetStringDlgImpl dialog(this, tr("Theme name"), tr("Theme name:"), typed, false);
        if (dialog.exec() != Accepted)
            return {};
        typed = dialog.text();
        const QString name = KWThemeFile::tidyName(typed);
        if (!name.isEmpty())
            return name;
        errorBox(tr("Invalid theme name"), tr("&OK"));
    }
}

void KWColoursAndFontsDlgImpl::saveTheme()
{
    const QString name = askThemeName();
    if (name.isEmpty())
        return;
    // Of the file as it is now: a second window of the program may have changed it.
    if (m_themes.contains(name) &&
        warningBox(tr("Overwrite theme '%1'?").arg(name), tr("OK"), tr("Cancel")) != 0)
        return;
    if (m_themes.save({name, shownColours()}) != KWThemeFile::Done) {
        errorBox(tr("Unable to write theme to '%1'").arg(m_themes.ownPath()), tr("&OK"));
        return;
    }
    listThemes();
    m_ui->m_themeListBox->setCurrentItem(
        m_ui->m_themeListBox->findItems(name, Qt::MatchFixedString).value(0));
}

void KWColoursAndFontsDlgImpl::deleteTheme()
{
    const QString name = currentTheme();
    if (name.isEmpty() ||
        warningBox(tr("Delete theme '%1'?").arg(name), tr("OK"), tr("Cancel")) != 0)
        return;
    const KWThemeFile::Result result = m_themes.remove(name);
    if (result == KWThemeFile::Unwritable)
        errorBox(tr("Unable to write themes to '%1'").arg(m_themes.ownPath()), tr("&OK"));
    if (result != KWThemeFile::Done)
        return;
    // The next one takes its place, so that several can be deleted in a row.
    QListWidget *list = m_ui->m_themeListBox;
    const int row = list->currentRow();
    listThemes();
    list->setCurrentRow(qMin(row, list->count() - 1));
}

void KWColoursAndFontsDlgImpl::languageChange()
{
    m_ui->retranslateUi(this);
    showPreviewTexts();
    updatePreview();
}
