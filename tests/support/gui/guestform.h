#pragma once

#include "gui/dialogs/kwguestwidgetimpl.h"
#include "gui/dialogs/kwpickcombobox.h"
#include "support/gui/dialogtest.h"
#include "support/testplan.h"

/// The fields of the form for a guest, in a window of whatever kind; null where there are none.
struct GuestForm
{
    explicit GuestForm(const QWidget &window)
        : title(window.findChild<KWPickComboBox *>(s("m_titleCombo")))
        , first(window.findChild<QLineEdit *>(s("m_firstNameLineEdit")))
        , last(window.findChild<QLineEdit *>(s("m_lastNameLineEdit")))
        , display(window.findChild<QLineEdit *>(s("m_displayNameLineEdit")))
        , gender(window.findChild<KWPickComboBox *>(s("m_genderComboBox")))
        , age(window.findChild<KWPickComboBox *>(s("m_ageComboBox")))
        , meal(window.findChild<KWPickComboBox *>(s("m_mealCombo")))
        , notes(window.findChild<QTextEdit *>(s("m_notesTextEdit")))
        , vip(window.findChild<QCheckBox *>(s("m_vipCheckBox")))
        , accepted(window.findChild<QCheckBox *>(s("m_acceptedCheckBox")))
        , locked(window.findChild<QCheckBox *>(s("m_lockedCheckBox")))
    {
    }

    KWPickComboBox *title;
    QLineEdit *first;
    QLineEdit *last;
    QLineEdit *display;
    KWPickComboBox *gender;
    KWPickComboBox *age;
    KWPickComboBox *meal;
    QTextEdit *notes;
    QCheckBox *vip;
    QCheckBox *accepted;
    QCheckBox *locked;

    /// Types over what the field holds.
    static void type(QLineEdit *edit, const char *text)
    {
        edit->selectAll();
        if (*text)
            QTest::keyClicks(edit, s(text));
        else
            QTest::keyClick(edit, Qt::Key_Delete);
    }
    static void type(QComboBox *combo, const char *text) { type(combo->lineEdit(), text); }

    /// All at once, where typing would pass through other texts.
    static void paste(QLineEdit *edit, const QString &text)
    {
        QApplication::clipboard()->setText(text);
        edit->selectAll();
        QTest::keySequence(edit, QKeySequence::Paste);
    }

    /// Picks an entry from the open list by the mouse.
    static void pick(QComboBox *combo, const char *text)
    {
        const int index = combo->findText(s(text));
        if (index < 0)
            qFatal("no entry %s", text);
        combo->showPopup();
        const QRect place = combo->view()->visualRect(combo->model()->index(index, 0));
        QTest::mouseClick(combo->view()->viewport(), Qt::LeftButton, {}, place.center());
    }

    static QStringList entries(const QComboBox *combo)
    {
        QStringList result;
        for (int i = 0; i < combo->count(); ++i)
            result.append(combo->itemText(i));
        return result;
    }
};

/// The form for a guest on the screen, with the titles of a new plan and three meals to choose
/// from.
struct ShownGuestForm
{
    ShownGuestForm()
    {
        widget.setTitleChoices(KWDocument().titles());
        widget.setMealChoices({s("Beef"), s("Fish"), s("Vegan")});
        widget.show();
        if (!QTest::qWaitForWindowActive(&widget))
            qFatal("no keys");
    }

    void typeNames(const char *title, const char *first, const char *last)
    {
        GuestForm::type(ui.title, title);
        GuestForm::type(ui.first, first);
        GuestForm::type(ui.last, last);
    }

    QString genderAndAge() const { return ui.gender->currentText() + u' ' + ui.age->currentText(); }

    KWGuestWidgetImpl widget;
    GuestForm ui{widget};
};
