#pragma once

#include <QComboBox>

/// A combo box that tells a pick from its open list, by the mouse or the Return key, from other
/// ways of choosing: arrow keys and the wheel change it while it is closed, too. The wheel does so
/// only where the focus is, and is left to the page everywhere else.
class KWPickComboBox : public QComboBox
{
    Q_OBJECT

public:
    explicit KWPickComboBox(QWidget *parent = nullptr);

    void showPopup() override;
    void hidePopup() override;

signals:
    void picked(int index);

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    bool m_listIsOpen = false;
    bool m_listIsClosing = false;
};
