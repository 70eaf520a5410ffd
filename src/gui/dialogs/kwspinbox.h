#pragma once

#include <QSpinBox>

/// A spin box that the wheel changes only where the focus is; everywhere else it is left to the
/// page.
class KWSpinBox : public QSpinBox
{
    Q_OBJECT

public:
    explicit KWSpinBox(QWidget *parent = nullptr);

protected:
    void wheelEvent(QWheelEvent *event) override;
};
