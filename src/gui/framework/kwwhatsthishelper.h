#pragma once

#include <QObject>

class QWidget;

/// Gives every widget in a window that has a tool tip and no what's-this text its tool tip as
/// what's-this text. Made as the last step of a window's construction, when all its widgets are
/// there; a child of the window.
class KWWhatsThisHelper : public QObject
{
    Q_OBJECT

public:
    explicit KWWhatsThisHelper(QWidget *window);
};
