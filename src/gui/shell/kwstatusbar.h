#pragma once

#include <QStatusBar>

class QLabel;
class QProgressBar;

/// The main window's status bar: the active view's icon, the counts and the score of the plan, and
/// the progress of long work, to the right of the short messages.
class KWStatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit KWStatusBar(QWidget *parent);

    void setCounts(int guests, int seats, int score);
    /// A null pixmap takes the icon away.
    void setViewIcon(const QPixmap &icon);
    /// Shows the progress bar at 0 to 99 and hides it at 100.
    void setProgress(int percent);

private:
    /// Lets a screen reader say a message.
    void announce(const QString &message);

    QLabel *m_viewIcon;
    QLabel *m_counts;
    QProgressBar *m_progress;
};
