#pragma once

#include "gui/appearance/kwcolours.h"

#include <QLabel>

/// A small drawing of a table with three seats, the middle one selected, in a corner of a room: how
/// a floor plan looks in some colours and a font.
class KWColourPreview : public QLabel
{
    Q_OBJECT

public:
    explicit KWColourPreview(QWidget *parent = nullptr);

    void setColours(const KWColours &colours);

    QSize sizeHint() const override { return {150, 150}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont scaledFont(int seatRadius) const;

    KWColours m_colours;
};
