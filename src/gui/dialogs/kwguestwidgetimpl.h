#pragma once

#include "core/model/kwguestvalues.h"

#include <QWidget>

#include <memory>

class QLineEdit;

namespace Ui {
class KWGuestWidget;
}

/// The part of a form that holds a person. While names are typed it tidies them, works out gender
/// and age from the title, and keeps the display name up with the other names as long as that was
/// not typed by hand. Names that are set from outside are not tidied.
class KWGuestWidgetImpl : public QWidget
{
    Q_OBJECT

public:
    /// Whether names get their capitals is decided by the setting as it is now.
    explicit KWGuestWidgetImpl(QWidget *parent = nullptr);
    ~KWGuestWidgetImpl() override;

    /// What the lists offer; the texts that are shown stay.
    void setTitleChoices(const QStringList &titles);
    void setMealChoices(const QStringList &meals);
    /// Unticks the box and takes it out of the form for good.
    void removeLocked();

    /// All that the fields hold, as it stands there.
    KWGuestValues values() const;
    /// A display name that the other names do not give counts as typed by hand.
    void setValues(const KWGuestValues &values);

    /// Empties names, title and notes and unticks VIP and accepted; the rest stays for the next.
    void clear();
    void focusTitle();
    void focusFirstName();

public slots:
    void updateDisplayName();
    void updateGenderFromTitle(const QString &title);
    void updateAgeFromTitle(const QString &title);
    void userUpdatedGender();
    void userUpdatedAge();
    void mealComboLostFocus();
    void titleComboLostFocus();
    void languageChange();

signals:
    void firstNameChanged(const QString &name);
    void lastNameChanged(const QString &name);
    /// The user has left the field.
    void mealTextChanged(const QString &text);
    void titleTextChanged(const QString &text);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void setUpCombos();
    void tidyNames();
    void connectFields();
    void setTitle(const QString &title);
    void setGender(int gender);
    void setAge(int age);
    QString composedName() const;

    std::unique_ptr<Ui::KWGuestWidget> m_ui;
    /// Owns what was taken out of the form, which still has pointers to it.
    QWidget m_removed;
    bool m_autoGender = true;
    bool m_autoAge = true;
};
