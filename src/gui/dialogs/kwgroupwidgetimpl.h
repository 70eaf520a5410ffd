#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class KWGroupWidget;
}

/// The part of a form that holds a group's name and notes.
class KWGroupWidgetImpl : public QWidget
{
    Q_OBJECT

public:
    explicit KWGroupWidgetImpl(QWidget *parent = nullptr);
    ~KWGroupWidgetImpl() override;

    QString name() const;
    void setName(const QString &name);
    QString notes() const;
    void setNotes(const QString &notes);
    void clear();
    /// Puts the focus where the entry of a group begins.
    void focusName();

public slots:
    void languageChange();

protected:
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::KWGroupWidget> m_ui;
};
