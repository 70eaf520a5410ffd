#pragma once

#include <QComboBox>

/// A combo box that tells a pick from its open list, by the mouse or the Return key, from other
/// ways of choosing: arrow keys and the wheel change it while it is closed, too.
class KWPickComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit KWPickComboBox(QWidget *parent = nullptr);

    void hidePopup() override;

signals:
    void picked(int index);

private:
    bool m_listIsClosing = false;
};
