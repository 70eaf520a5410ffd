#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QWidget>

/// Gives every widget in a window that has a tool tip and no what's-this text its tool tip as
/// what's-this text, and without mark-up as its description, and again in each new language. Made
/// as the last step of a window's construction, when all its widgets are there; a child of the
/// window.
class KWWhatsThisHelper : public QObject
{
    Q_OBJECT

public:
    explicit KWWhatsThisHelper(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void copyToolTips();

    QList<QPointer<QWidget>> m_widgets;
};
