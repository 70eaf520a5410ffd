#pragma once

#include <QMainWindow>

#include <memory>

class KWFindBar;
class KWHelpBrowser;
class KWHelpFile;
class KWHelpPages;
class KWStayUsable;
class QSplitter;

/// The window with the pages of a help file: the contents at the left, a page at the right. It is
/// not modal, and stays usable while modal dialogs are up. Closing only hides it.
class KWHelpWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit KWHelpWindow(QWidget *parent = nullptr);
    ~KWHelpWindow() override;

    /// Shows a page of the help file at `path`, such as "Main_window.htm", and comes to the front.
    /// False, with nothing changed, if the file has no such page or cannot be read.
    bool showPage(const QString &path, const QString &page);

    QUrl pageUrl() const;
    /// Goes where a link leads: to a page of the help, or out to the web browser. A link such as
    /// "example:wedding.kw" asks for an example plan.
    void openLink(const QUrl &url);

signals:
    /// A link leads to a page that the file does not have.
    void pageMissing(const QString &page, const QString &path);
    /// The user wants to see an example plan of that name, which may be any text.
    void exampleChosen(const QString &name);

private:
    void setUpActions();
    /// `icon` is a name in the desktop's icon theme; without one the text alone has to do.
    QAction *addTool(const QString &text, const QString &toolTip, const QString &icon,
                     const QString &name, const QList<QKeySequence> &keys, auto slot);
    void useFile(std::unique_ptr<KWHelpFile> file);
    /// Where it hides as little as can be of the dialog that it was asked from.
    void standBeside(const QWidget *dialog);
    void shareWidth();
    QSize wantedSize() const;
    void openEntry(const QString &page);
    void goHome();
    void zoom(int steps);
    void followPage(const QUrl &url);
    void escape();

    std::unique_ptr<KWHelpFile> m_file;
    QSplitter *m_splitter;
    KWHelpPages *m_pages;
    KWHelpBrowser *m_browser;
    KWFindBar *m_findBar;
    KWStayUsable *m_stayUsable;
    int m_zoom = 0;
    /// When it was shown last, it was made to fit beside a dialog.
    bool m_stoodBeside = false;
};
