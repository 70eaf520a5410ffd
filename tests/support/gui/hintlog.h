#pragma once

#include <QStatusTipEvent>
#include <QStringList>
#include <QWidget>

/// Writes down the hints for the status bar that come from a widget.
class HintLog : public QObject
{
    Q_OBJECT

public:
    explicit HintLog(QWidget *widget) { widget->installEventFilter(this); }

    QStringList hints;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::StatusTip)
            hints.append(static_cast<QStatusTipEvent *>(event)->tip());
        return QObject::eventFilter(watched, event);
    }
};
