#pragma once

#include <QTabWidget>

class KWPlanSettingsPanel;
class KWView;
class QToolButton;

/// One of the panes around the window's centre: tabs with a button that hides them all. Says when
/// it was shown or hidden, but not when the whole window was minimised.
class KWCloseableTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    /// What a screen reader calls the pane and its button; QT_TR_NOOP() of the subclass.
    struct Words
    {
        const char *pane;
        const char *hide;
    };
    KWCloseableTabWidget(QWidget *parent, const QString &name, const Words &words);

    /// Adds a page, which is a view or a pair of view and filter panel. It gets the object name
    /// `name`, and so does a view in it that has none; the view and the tab get the icon. The tab
    /// shows the name in the user's language: it is a QT_TR_NOOP() of the subclass.
    void addPage(QWidget *page, const QPixmap &icon, const char *name);

    /// The view on a page; null for null and for a page that holds none.
    static KWView *viewOn(QWidget *page);
    /// The view of the current page, or null.
    KWView *currentView() const;
    /// The views of all pages, in their order.
    QList<KWView *> views() const;
    /// The panels with choices that are saved with a plan, of all pages in their order.
    QList<KWPlanSettingsPanel *> settingsPanels() const;
    /// The name of the current page in the user's language.
    QString currentLabel() const;

signals:
    void visibilityChange(bool visible);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void languageChange();
    QString translated(const char *words) const;
    QString labelOf(const QWidget *page) const;

    Words m_words;
    QToolButton *m_closeButton;
};
