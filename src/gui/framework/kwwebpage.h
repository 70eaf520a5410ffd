#pragma once

#include <QObject>
#include <QString>

class QLabel;

/// Shows an address, or an existing file, in the user's browser. False if that failed, after the
/// user was told.
bool showWebPage(const QString &address);

/// The path of one of the pages shipped with the program: "home", "fonts", "veltrace" or "toolkit".
QString webPage(const QString &name);

/// Makes a label open a web page when the mouse is pressed on it. The label owns it.
class KWShowWebPage : public QObject
{
    Q_OBJECT

public:
    KWShowWebPage(QLabel *label, const QString &address);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QObject *m_label;
    QString m_address;
};
