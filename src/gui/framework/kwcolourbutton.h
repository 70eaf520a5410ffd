#pragma once

#include <QColor>
#include <QFrame>

class QPushButton;

/// A button that shows a colour and lets the user choose another one.
class KWColourButton : public QFrame
{
    Q_OBJECT

public:
    explicit KWColourButton(QWidget *parent = nullptr);

    QColor colour() const;
    /// Emits nothing: only a choice of the user's does.
    void setColour(const QColor &colour);

public slots:
    void changeColour();

signals:
    void colourChanged(const QColor &colour);

protected:
    bool event(QEvent *event) override;

private:
    void describe();

    QPushButton *m_button;
    QFrame *m_interior;
};
