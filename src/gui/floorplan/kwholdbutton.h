#pragma once

#include <QToolButton>

/// A button that does something for as long as it is held down: whoever uses it follows pressed()
/// and released(). Whatever takes it out of the user's hand counts as a release, as does a window
/// that loses the focus or a dialog that comes up, so that each pressed() has its released().
class KWHoldButton : public QToolButton
{
    Q_OBJECT

public:
    explicit KWHoldButton(QWidget *parent = nullptr);

    bool eventFilter(QObject *object, QEvent *event) override;

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void letGo();

    /// The mouse button may still be down, but no longer holds this.
    bool m_letGo = false;
};
