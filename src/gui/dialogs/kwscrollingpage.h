#pragma once

#include <QScrollArea>

/// A page of a form that scrolls up and down where the screen is too low for all of it, and never
/// sideways. It wants as much room as its contents, where a plain scroll area stops at some lines,
/// and shows what gets the focus by a key. Needs its widget before anybody asks for its size.
class KWScrollingPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit KWScrollingPage(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
};
