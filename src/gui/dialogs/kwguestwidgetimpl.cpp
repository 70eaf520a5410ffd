#include "gui/dialogs/kwguestwidgetimpl.h"

#include "core/model/kwdocument.h"
#include "gui/dialogs/kwnamevalidator.h"
#include "gui/framework/kwmainwindow.h"
#include "gui/framework/kwusersettings.h"
#include "ui_kwguestwidget.h"

#include <QFocusEvent>

namespace {

bool capitaliseNames()
{
    KWMainWindow *window = mainWin();
    return !window || window->userSettings()->miscCapitaliseNames();
}

/// A text that is not typed stays as it is.
void setUntidied(QLineEdit *edit, const QString &text)
{
    const QValidator *validator = edit->validator();
    edit->setValidator(nullptr);
    edit->setText(text);
    edit->setValidator(validator);
}

/// The same for a combo box, whose list goes along, so that arrow keys go on from the text.
void setUntidied(QComboBox *combo, const QString &text)
{
    const QValidator *validator = combo->validator();
    combo->setValidator(nullptr);
    combo->setCurrentIndex(combo->findText(text));
    combo->setEditText(text);
    combo->setValidator(validator);
}

void setChoices(QComboBox *combo, const QStringList &choices)
{
    const QString text = combo->currentText();
    const QSignalBlocker blocker(combo);
    combo->clear();
    combo->addItems(choices);
    setUntidied(combo, text);
}
} // namespace

KWGuestWidgetImpl::KWGuestWidgetImpl(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::KWGuestWidget>())
{
    m_ui->setupUi(this);
    setUpCombos();
    tidyNames();
    connectFields();
}

// A field that goes may take its text for a choice from its list.
KWGuestWidgetImpl::~KWGuestWidgetImpl()
{
    m_ui->m_titleCombo->disconnect(this);
}

void KWGuestWidgetImpl::setUpCombos()
{
    for (QComboBox *combo : {m_ui->m_titleCombo, m_ui->m_mealCombo}) {
        // "Mr" must not become "Mrs" before it is all typed.
        combo->setCompleter(nullptr);
        combo->lineEdit()->setMaxLength(m_ui->m_firstNameLineEdit->maxLength());
    }
}

void KWGuestWidgetImpl::tidyNames()
{
    const bool capitalise = capitaliseNames();
    for (QLineEdit *edit :
         {m_ui->m_titleCombo->lineEdit(), m_ui->m_firstNameLineEdit, m_ui->m_lastNameLineEdit})
        edit->setValidator(new KWNameValidator(capitalise, edit));
}

void KWGuestWidgetImpl::connectFields()
{
    using Widget = KWGuestWidgetImpl;
    const auto &ui = *m_ui;
    connect(ui.m_titleCombo, &QComboBox::editTextChanged, this, &Widget::updateDisplayName);
    connect(ui.m_firstNameLineEdit, &QLineEdit::textChanged, this, &Widget::updateDisplayName);
    connect(ui.m_lastNameLineEdit, &QLineEdit::textChanged, this, &Widget::updateDisplayName);
    connect(ui.m_firstNameLineEdit, &QLineEdit::textChanged, this, &Widget::firstNameChanged);
    connect(ui.m_lastNameLineEdit, &QLineEdit::textChanged, this, &Widget::lastNameChanged);
    connect(ui.m_titleCombo, &QComboBox::editTextChanged, this, &Widget::updateGenderFromTitle);
    connect(ui.m_titleCombo, &QComboBox::editTextChanged, this, &Widget::updateAgeFromTitle);
    connect(ui.m_genderComboBox, &QComboBox::activated, this, &Widget::userUpdatedGender);
    connect(ui.m_ageComboBox, &QComboBox::activated, this, &Widget::userUpdatedAge);
    // They have the focus in the place of their line edits.
    ui.m_titleCombo->installEventFilter(this);
    ui.m_mealCombo->installEventFilter(this);
    // The validator has been at a chosen text, too; a pick is told first, and moves the focus.
    const auto untidy = [this](int index) { setTitle(m_ui->m_titleCombo->itemText(index)); };
    connect(ui.m_titleCombo, &KWPickComboBox::picked, this, untidy);
    connect(ui.m_titleCombo, &QComboBox::activated, this, untidy);

    const auto goOn = [](KWPickComboBox *from, QWidget *to) {
        connect(from, &KWPickComboBox::picked, to, qOverload<>(&QWidget::setFocus));
    };
    goOn(ui.m_titleCombo, ui.m_firstNameLineEdit);
    goOn(ui.m_genderComboBox, ui.m_ageComboBox);
    goOn(ui.m_ageComboBox, ui.m_mealCombo);
}

void KWGuestWidgetImpl::setTitleChoices(const QStringList &titles)
{
    setChoices(m_ui->m_titleCombo, titles);
}

void KWGuestWidgetImpl::setMealChoices(const QStringList &meals)
{
    setChoices(m_ui->m_mealCombo, meals);
}

void KWGuestWidgetImpl::removeLocked()
{
    m_ui->m_lockedCheckBox->setChecked(false);
    m_ui->m_lockedCheckBox->setParent(&m_removed);
}

KWGuestValues KWGuestWidgetImpl::values() const
{
    return {.display_name = m_ui->m_displayNameLineEdit->text(),
            .title = m_ui->m_titleCombo->currentText(),
            .first_name = m_ui->m_firstNameLineEdit->text(),
            .last_name = m_ui->m_lastNameLineEdit->text(),
            .meal = m_ui->m_mealCombo->currentText(),
            .gender = m_ui->m_genderComboBox->currentIndex(),
            .age = m_ui->m_ageComboBox->currentIndex(),
            .locked = m_ui->m_lockedCheckBox->isChecked(),
            .notes = m_ui->m_notesTextEdit->notes(),
            .vip = m_ui->m_vipCheckBox->isChecked(),
            .accepted = m_ui->m_acceptedCheckBox->isChecked()};
}

void KWGuestWidgetImpl::setValues(const KWGuestValues &values)
{
    // The names first, since the others may follow them.
    setTitle(values.title);
    setUntidied(m_ui->m_firstNameLineEdit, values.first_name);
    setUntidied(m_ui->m_lastNameLineEdit, values.last_name);
    m_ui->m_displayNameLineEdit->setText(values.display_name);
    m_ui->m_displayNameLineEdit->setModified(values.display_name != composedName());
    setGender(values.gender);
    setAge(values.age);
    setUntidied(m_ui->m_mealCombo, values.meal);
    m_ui->m_notesTextEdit->setNotes(values.notes);
    m_ui->m_vipCheckBox->setChecked(values.vip);
    m_ui->m_acceptedCheckBox->setChecked(values.accepted);
    m_ui->m_lockedCheckBox->setChecked(values.locked);
}

void KWGuestWidgetImpl::setTitle(const QString &title)
{
    setUntidied(m_ui->m_titleCombo, title);
}

void KWGuestWidgetImpl::setGender(int gender)
{
    m_ui->m_genderComboBox->setCurrentIndex(gender);
}

void KWGuestWidgetImpl::setAge(int age)
{
    m_ui->m_ageComboBox->setCurrentIndex(age);
}

void KWGuestWidgetImpl::clear()
{
    const KWGuestValues old = values();
    setValues({.meal = old.meal, .gender = old.gender, .age = old.age, .locked = old.locked});
}

void KWGuestWidgetImpl::focusTitle()
{
    m_ui->m_titleCombo->setFocus();
}

void KWGuestWidgetImpl::focusFirstName()
{
    m_ui->m_firstNameLineEdit->setFocus();
}

QString KWGuestWidgetImpl::composedName() const
{
    return KWGuest::composeDisplayName(m_ui->m_titleCombo->currentText(),
                                       m_ui->m_firstNameLineEdit->text(),
                                       m_ui->m_lastNameLineEdit->text());
}

void KWGuestWidgetImpl::updateDisplayName()
{
    QLineEdit *edit = m_ui->m_displayNameLineEdit;
    if (edit->isModified())
        return;
    edit->setText(composedName());
    edit->setModified(false);
}

void KWGuestWidgetImpl::updateGenderFromTitle(const QString &title)
{
    if (!m_autoGender)
        return;
    if (title == KWDocument::tr("Mr") || title == KWDocument::tr("Master"))
        setGender(KWGuest::Male);
    else if (title == KWDocument::tr("Mrs") || title == KWDocument::tr("Ms") ||
             title == KWDocument::tr("Miss"))
        setGender(KWGuest::Female);
}

void KWGuestWidgetImpl::updateAgeFromTitle(const QString &title)
{
    if (!m_autoAge)
        return;
    if (title == KWDocument::tr("Master"))
        setAge(KWGuest::Child);
    else if (title == KWDocument::tr("Mr") || title == KWDocument::tr("Mrs") ||
             title == KWDocument::tr("Ms") || title == KWDocument::tr("Dr"))
        setAge(KWGuest::Adult);
}

void KWGuestWidgetImpl::userUpdatedGender()
{
    m_autoGender = false;
}

void KWGuestWidgetImpl::userUpdatedAge()
{
    m_autoAge = false;
}

void KWGuestWidgetImpl::mealComboLostFocus()
{
    emit mealTextChanged(m_ui->m_mealCombo->currentText());
}

void KWGuestWidgetImpl::titleComboLostFocus()
{
    emit titleTextChanged(m_ui->m_titleCombo->currentText());
}

bool KWGuestWidgetImpl::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::FocusOut &&
        static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason) {
        if (object == m_ui->m_titleCombo)
            titleComboLostFocus();
        else
            mealComboLostFocus();
    }
    return QWidget::eventFilter(object, event);
}

void KWGuestWidgetImpl::languageChange()
{
    m_ui->retranslateUi(this);
}

void KWGuestWidgetImpl::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        languageChange();
}
