#pragma once

#include <QTabWidget>

class KWView;
class QToolButton;

/// One of the panes around the window's centre: tabs with a button that hides them all. Says when
/// it was shown or hidden, but not when the whole window was minimised.
class KWCloseableTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    KWCloseableTabWidget(QWidget *parent, const QString &name);

    /// Adds a page, which is a view or a pair of view and filter panel. It gets the object name
    /// `name`, and so does a view in it that has none; the view and the tab get the icon. `label`
    /// is what the tab shows.
    void addPage(QWidget *page, const QPixmap &icon, const QString &name, const QString &label);

    /// The view on a page; null for null and for a page that holds none.
    static KWView *viewOn(QWidget *page);
    /// The view of the current page, or null.
    KWView *currentView() const;
    /// The view on the page of that name, or null.
    KWView *viewNamed(QAnyStringView name) const;

signals:
    void visibilityChange(bool visible);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void nameCloseButton();

    QToolButton *m_closeButton;
};
