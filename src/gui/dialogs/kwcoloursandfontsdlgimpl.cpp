#include "gui/dialogs/kwcoloursandfontsdlgimpl.h"

#include "core/model/kwdocument.h"
#include "gui/appearance/kwcolourpreview.h"
#include "gui/appearance/kwstylehelper.h"
#include "gui/framework/kwaccel.h"
#include "gui/framework/kwdatadirectory.h"
#include "gui/framework/kwgetstringdlgimpl.h"
#include "gui/framework/kwhelp.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwmessages.h"
#include "gui/framework/kwprompts.h"
#include "gui/framework/kwwebpage.h"
#include "gui/framework/kwwhatsthishelper.h"
#include "ui_kwcoloursandfontsdlg.h"

#include <QTextCursor>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

using Mode = KWColoursAndFontsDlgImpl::Mode;

/// A button, the colour of the plan that it changes, and that colour's place in a theme.
struct Part
{
    KWColourButton *button;
    QColor KWColours::*colour;
    QColor (KWDocument::*get)() const;
    void (KWDocument::*set)(const QColor &);
};

QList<Part> parts(const Ui::KWColoursAndFontsDlg &ui, Mode mode)
{
    using C = KWColours;
    using D = KWDocument;
    KWColourButton *background = ui.m_chartBackgroundColourButton;
    KWColourButton *text = ui.m_chartTextColourButton;
    if (mode == Mode::TableChart)
        return {{background, &C::inside, &D::tableChartColourBackground,
                 &D::setTableChartColourBackground},
                {text, &C::tableText, &D::tableChartColourText, &D::setTableChartColourText}};
    if (mode == Mode::GuestChart)
        return {{background, &C::inside, &D::guestChartColourBackground,
                 &D::setGuestChartColourBackground},
                {text, &C::tableText, &D::guestChartColourText, &D::setGuestChartColourText}};
    return {
        {ui.m_seatsColourButton, &C::seats, &D::floorplanColourSeats, &D::setFloorplanColourSeats},
        {ui.m_seatEdgeColourButton, &C::seatsEdge, &D::floorplanColourSeatsEdge,
         &D::setFloorplanColourSeatsEdge},
        {ui.m_tablesColourButton, &C::tables, &D::floorplanColourTables,
         &D::setFloorplanColourTables},
        {ui.m_tableEdgeColourButton, &C::tablesEdge, &D::floorplanColourTablesEdge,
         &D::setFloorplanColourTablesEdge},
        {ui.m_insideColourButton, &C::inside, &D::floorplanColourInside,
         &D::setFloorplanColourInside},
        {ui.m_outsideColourButton, &C::outside, &D::floorplanColourOutside,
         &D::setFloorplanColourOutside},
        {ui.m_seatTextColourButton, &C::seatsText, &D::floorplanColourSeatsText,
         &D::setFloorplanColourSeatsText},
        {ui.m_tableTextColourButton, &C::tableText, &D::floorplanColourTableText,
         &D::setFloorplanColourTableText},
        {ui.m_selectedColourButton, &C::selected, &D::floorplanColourSelected,
         &D::setFloorplanColourSelected},
    };
}

struct FontOfPlan
{
    QFont (KWDocument::*get)() const;
    void (KWDocument::*set)(const QFont &);
};

FontOfPlan fontOfPlan(Mode mode)
{
    using D = KWDocument;
    if (mode == Mode::TableChart)
        return {&D::tableChartFont, &D::setTableChartFont};
    if (mode == Mode::GuestChart)
        return {&D::guestChartFont, &D::setGuestChartFont};
    return {&D::floorPlanFont, &D::setFloorPlanFont};
}

/// A plan that has no such colour is given the application's.
QColor selectedColour(KWDocument &plan)
{
    if (!plan.floorplanColourSelected().isValid())
        plan.setFloorplanColourSelected(KWColours::highlightColour());
    return plan.floorplanColourSelected();
}
} // namespace

KWColoursAndFontsDlgImpl::KWColoursAndFontsDlgImpl(QWidget *parent, KWDocument *document, Mode mode)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::KWColoursAndFontsDlg>())
    , m_document(document)
    , m_mode(mode)
    , m_themes(userDataDirectory(), dataDirectory() + u"/themes"_s)
{
    m_ui->setupUi(this);
    connectParts();
    showColours(coloursOfPlan());
    hideUnused();
    updatePreview();
    listThemes();
    new KWWhatsThisHelper(this);
    new KWStyleHelper(this);
    addAccel(this, Qt::Key_F1, this, &KWColoursAndFontsDlgImpl::help);
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
    connect(ui.m_themeListBox, &QListWidget::itemSelectionChanged, this, &Dlg::updateButtonStatus);
    connect(ui.m_themeListBox, &QListWidget::itemDoubleClicked, this, &Dlg::loadTheme);
    connect(ui.m_loadThemeButton, &QPushButton::clicked, this, &Dlg::loadTheme);
    connect(ui.m_saveThemeButton, &QPushButton::clicked, this, &Dlg::saveTheme);
    connect(ui.m_deleteThemeButton, &QPushButton::clicked, this, &Dlg::deleteTheme);
    connect(ui.m_okButton, &QPushButton::clicked, this, &Dlg::apply);
    connect(ui.m_helpButton, &QPushButton::clicked, this, &Dlg::help);
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

KWColours KWColoursAndFontsDlgImpl::coloursOfPlan() const
{
    KWColours colours;
    for (const Part &part : parts(*m_ui, m_mode))
        colours.*part.colour = (m_document->*part.get)();
    if (m_mode == FloorPlan)
        colours.selected = selectedColour(*m_document);
    colours.font = (m_document->*fontOfPlan(m_mode).get)();
    return colours;
}

void KWColoursAndFontsDlgImpl::showColours(const KWColours &colours)
{
    for (const Part &part : parts(*m_ui, m_mode))
        part.button->setColour(colours.*part.colour);
    m_font = colours.font;
}

KWColours KWColoursAndFontsDlgImpl::shownColours() const
{
    KWColours colours;
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
    for (const Part &part : parts(*m_ui, m_mode))
        (m_document->*part.set)(part.button->colour());
    (m_document->*fontOfPlan(m_mode).set)(m_font);
    // Or closing would lose them without a question.
    m_document->setModified(true);
    m_document->announceModified();
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
    m_ui->m_themeListBox->clear();
    m_ui->m_themeListBox->addItems(m_themes.names());
    updateButtonStatus();
}

QString KWColoursAndFontsDlgImpl::currentTheme() const
{
    const QListWidgetItem *item = m_ui->m_themeListBox->currentItem();
    return item ? item->text() : QString();
}

// Of the file as it is now: a second window of the program may have changed it.
bool KWColoursAndFontsDlgImpl::isListed(const QString &name) const
{
    const QStringList names = m_themes.names();
    return std::ranges::any_of(
        names, [&](const QString &other) { return KWThemeFile::isSameName(other, name); });
}

void KWColoursAndFontsDlgImpl::updateButtonStatus()
{
    // The current theme is the selected one, also where the list makes one current by itself.
    QListWidgetItem *item = m_ui->m_themeListBox->currentItem();
    if (item)
        item->setSelected(true);
    m_ui->m_loadThemeButton->setEnabled(item);
    m_ui->m_deleteThemeButton->setEnabled(item);
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
    if (result != KWThemeFile::Done)
        return;
    showColours(theme.colours);
    updatePreview();
}

void KWColoursAndFontsDlgImpl::saveTheme()
{
    KWGetStringDlgImpl dialog(this, tr("Theme name"), tr("Theme name:"), currentTheme(), false);
    if (dialog.exec() != Accepted)
        return;
    const QString name = KWThemeFile::tidyName(dialog.text());
    if (name.isEmpty()) {
        errorBox(tr("Invalid theme name"), tr("&OK"));
        return;
    }
    const bool replace = isListed(name);
    if (replace && warningBox(tr("Overwrite theme '%1'?").arg(name), tr("OK"), tr("Cancel")) != 0)
        return;
    KWTheme theme{name, shownColours()};
    if (m_mode != FloorPlan)
        theme.colours.selected = selectedColour(*m_document);
    if (m_themes.save(theme) != KWThemeFile::Done) {
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

void KWColoursAndFontsDlgImpl::help()
{
    showHelpTopic(u"Fonts_and_colours_window.htm"_s);
}

void KWColoursAndFontsDlgImpl::languageChange()
{
    m_ui->retranslateUi(this);
    showPreviewTexts();
    updatePreview();
}

void KWColoursAndFontsDlgImpl::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
}
