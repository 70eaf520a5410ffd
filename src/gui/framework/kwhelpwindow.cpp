#include "gui/framework/kwhelpwindow.h"

#include "gui/framework/kwfindbar.h"
#include "gui/framework/kwhelpbrowser.h"
#include "gui/framework/kwhelpfile.h"
#include "gui/framework/kwhelppages.h"
#include "gui/framework/kwhelpsafety.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwstayusable.h"
#include "gui/framework/kwwhatsthishelper.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
constexpr int smallestZoom = -4;
constexpr int greatestZoom = 16;

bool hasPage(const KWHelpFile &file, const QString &page)
{
    const QString name = page.section(u'#', 0, 0);
    const QString suffix = name.section(u'.', -1).toLower();
    if (suffix != "htm"_L1 && suffix != "html"_L1)
        return false;
    const std::optional<QByteArray> html = file.object(name);
    return html && isShowablePage(*html);
}
} // namespace

KWHelpWindow::KWHelpWindow(QWidget *parent)
    // As a dialog it is kept in front of its owner, so that one can read while one works.
    : QMainWindow(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint)
    , m_browser(new KWHelpBrowser(nullptr))
{
    setObjectName(u"help window"_s);
    setAttribute(Qt::WA_QuitOnClose, false);
    m_splitter = new QSplitter(this);
    m_pages = new KWHelpPages(m_splitter);
    auto *page = new QWidget(m_splitter);
    m_findBar = new KWFindBar(m_browser, page);
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_browser, 1);
    column->addWidget(m_findBar);
    m_splitter->setChildrenCollapsible(false);
    m_splitter->setStretchFactor(1, 1);
    setCentralWidget(m_splitter);

    connect(m_pages, &KWHelpPages::pageChosen, this, &KWHelpWindow::openEntry);
    connect(m_browser, &QTextBrowser::anchorClicked, this, &KWHelpWindow::openLink);
    connect(m_browser, &QTextBrowser::sourceChanged, this, &KWHelpWindow::followPage);

    setUpActions();
    resize(wantedSize());
    m_stayUsable = new KWStayUsable(this);
    new KWWhatsThisHelper(this);
}

KWHelpWindow::~KWHelpWindow() = default;

QAction *KWHelpWindow::addTool(const QString &text, const QString &toolTip, const QString &icon,
                               const QString &name, const QList<QKeySequence> &keys, auto slot)
{
    auto *action = new QAction(QIcon::fromTheme(icon), text, this);
    action->setObjectName(name);
    action->setShortcuts(keys);
    const QString key = keys.first().toString(QKeySequence::NativeText);
    action->setToolTip(u"%1 (%2)"_s.arg(toolTip, key));
    connect(action, &QAction::triggered, this, slot);
    addAction(action);
    return action;
}

void KWHelpWindow::setUpActions()
{
    QToolBar *bar = addToolBar(tr("Help toolbar"));
    bar->setObjectName(u"Help toolbar"_s);
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);

    QAction *back =
        addTool(tr("Back"), tr("Go back to the page before"), u"go-previous"_s, u"backAction"_s,
                {QKeySequence(u"Alt+Left"_s)}, [this] { m_browser->backward(); });
    QAction *forward =
        addTool(tr("Forward"), tr("Go forward again"), u"go-next"_s, u"forwardAction"_s,
                {QKeySequence(u"Alt+Right"_s)}, [this] { m_browser->forward(); });
    QAction *home = addTool(tr("Home"), tr("Go to the first page of the help"), u"go-home"_s,
                            u"homeAction"_s, {QKeySequence(u"Alt+Home"_s)}, &KWHelpWindow::goHome);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    bar->addActions({back, forward, home});

    bar->addSeparator();
    // The key with the plus sign gives an equals sign without Shift on many keyboards.
    bar->addAction(
        addTool(tr("Zoom in"), tr("Show the text larger"), u"zoom-in"_s, u"zoomInAction"_s,
                {QKeySequence(u"Ctrl++"_s), QKeySequence(u"Ctrl+="_s)}, [this] { zoom(1); }));
    bar->addAction(addTool(tr("Zoom out"), tr("Show the text smaller"), u"zoom-out"_s,
                           u"zoomOutAction"_s, {QKeySequence(u"Ctrl+-"_s)}, [this] { zoom(-1); }));

    bar->addSeparator();
    bar->addAction(addTool(tr("Find"), tr("Find words on this page"), u"edit-find"_s,
                           u"findAction"_s, {QKeySequence(u"Ctrl+F"_s)},
                           [this] { m_findBar->start(); }));
    connect(new QShortcut(QKeySequence(u"Ctrl+Shift+F"_s), this), &QShortcut::activated, m_pages,
            &KWHelpPages::startSearch);
    addTool(tr("Find next"), tr("Find the words further down"), {}, u"findNextAction"_s,
            {QKeySequence(u"F3"_s)}, [this] { m_findBar->findNext(); });
    addTool(tr("Find previous"), tr("Find the words further up"), {}, u"findPreviousAction"_s,
            {QKeySequence(u"Shift+F3"_s)}, [this] { m_findBar->findPrevious(); });
    connect(new QShortcut(QKeySequence(u"Esc"_s), this), &QShortcut::activated, this,
            &KWHelpWindow::escape);
    connect(new QShortcut(QKeySequence(u"F1"_s), this), &QShortcut::activated, this,
            [this] { openLink(KWHelpBrowser::pageUrl(u"Getting_help.htm"_s)); });
}

bool KWHelpWindow::showPage(const QString &path, const QString &page)
{
    const bool replaced = !m_file || m_file->path() != path;
    if (!replaced) {
        if (!hasPage(*m_file, page))
            return false;
    } else {
        auto file = std::make_unique<KWHelpFile>(path);
        if (!hasPage(*file, page))
            return false;
        useFile(std::move(file));
    }
    m_browser->setSource(KWHelpBrowser::pageUrl(page));
    if (replaced)
        m_browser->reload();
    if (isMinimized())
        showNormal();
    const QWidget *dialog = QApplication::activeModalWidget();
    if (!isVisible()) {
        if (dialog)
            standBeside(dialog);
        else if (m_stoodBeside)
            resize(wantedSize());
        m_stoodBeside = dialog != nullptr;
        shareWidth();
    }
    show();
    m_stayUsable->follow();
    raise();
    activateWindow();
    m_browser->setFocus();
    return true;
}

/// Gives the page the most of a narrow window.
void KWHelpWindow::shareWidth()
{
    const int pages = qMin(240, width() * 3 / 10);
    m_splitter->setSizes({pages, width() - pages});
}

QSize KWHelpWindow::wantedSize() const
{
    // On a small screen the frame needs some room, too.
    return QSize(900, 640).boundedTo(screen()->availableSize() * 0.9);
}

void KWHelpWindow::standBeside(const QWidget *widget)
{
    constexpr int gap = 12;
    constexpr int narrowest = 420;
    const QRect dialog = widget->frameGeometry();
    const QRect room = widget->screen()->availableGeometry();
    const int leftRoom = dialog.left() - room.left() - gap;
    const int rightRoom = room.right() - dialog.right() - gap;
    const QSize wanted = wantedSize();
    setWindowState(windowState() & ~Qt::WindowMaximized);
    resize(qMin(wanted.width(), qMax(narrowest, qMax(leftRoom, rightRoom) - gap)), wanted.height());
    const int x = leftRoom > rightRoom ? qMax(room.left(), dialog.left() - gap - width())
                                       : qMin(room.right() - width(), dialog.right() + gap);
    const int lowest = qMax(room.top(), room.bottom() - height() - 3 * gap);
    move(x, qBound(room.top(), dialog.top(), lowest));
}

QUrl KWHelpWindow::pageUrl() const
{
    return m_browser->source();
}

void KWHelpWindow::useFile(std::unique_ptr<KWHelpFile> file)
{
    m_browser->setHelpFile(file.get());
    m_pages->setFile(file.get());
    m_file = std::move(file);
    m_browser->clearHistory();
}

void KWHelpWindow::openLink(const QUrl &url)
{
    if (url.scheme() == "http"_L1 || url.scheme() == "https"_L1) {
        QDesktopServices::openUrl(url);
        return;
    }
    if (url.scheme() == "example"_L1) {
        emit exampleChosen(url.path());
        return;
    }
    const QUrl target = m_browser->source().resolved(url);
    const QString page = KWHelpBrowser::pageOf(target);
    if (!m_file || page.isEmpty())
        return;
    if (hasPage(*m_file, page))
        m_browser->setSource(target);
    else
        emit pageMissing(page, m_file->path());
}

void KWHelpWindow::openEntry(const QString &page)
{
    if (page.isEmpty())
        return;
    if (KWHelpBrowser::pageUrl(page) != m_browser->source())
        openLink(KWHelpBrowser::pageUrl(page));
    // The line of a page that is missing does not stay marked.
    followPage(m_browser->source());
    if (!m_pages->words().isEmpty())
        m_browser->find(m_pages->words().section(u' ', 0, 0));
}

void KWHelpWindow::goHome()
{
    if (!m_pages->homePage().isEmpty())
        openLink(KWHelpBrowser::pageUrl(m_pages->homePage()));
}

void KWHelpWindow::zoom(int steps)
{
    const int wanted = std::clamp(m_zoom + steps, smallestZoom, greatestZoom);
    m_browser->zoomIn(wanted - m_zoom);
    m_zoom = wanted;
}

void KWHelpWindow::followPage(const QUrl &url)
{
    const QString page = KWHelpBrowser::pageOf(url);
    const QString title = m_browser->documentTitle().simplified();
    //: %1 is the product's name, %2 the title of a page
    setWindowTitle(
        tr("%1 help - %2").arg(KWMainWindow::productName(), title.isEmpty() ? page : title));
    m_browser->setAccessibleName(title);
    m_pages->setCurrentPage(page);
}

void KWHelpWindow::escape()
{
    if (m_findBar->isVisible())
        m_findBar->finish();
    else if (!m_pages->words().isEmpty())
        m_pages->endSearch();
    else
        close();
}
