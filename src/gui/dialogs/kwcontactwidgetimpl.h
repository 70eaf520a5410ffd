#pragma once

#include <QWidget>

#include <memory>

class KWContact;

namespace Ui {
class KWContactWidget;
}

/// The part of a form that holds a group's address and how to reach it.
class KWContactWidgetImpl : public QWidget
{
    Q_OBJECT

public:
    explicit KWContactWidgetImpl(QWidget *parent = nullptr);
    ~KWContactWidgetImpl() override;

    KWContact contact() const;
    void setContact(const KWContact &contact);
    void clear();

public slots:
    void languageChange();

protected:
    void changeEvent(QEvent *event) override;

private:
    std::unique_ptr<Ui::KWContactWidget> m_ui;
};
