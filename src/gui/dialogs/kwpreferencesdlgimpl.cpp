#include "gui/dialogs/kwpreferencesdlgimpl.h"

#include "gui/framework/kwtooltips.h"
#include "gui/framework/kwusersettings.h"
#include "ui_kwpreferencesdlg.h"

#include <QMouseEvent>

namespace {

/// A check box and the setting that it stands for.
struct Flag
{
    QCheckBox *box;
    bool (KWUserSettings::*get)() const;
    void (KWUserSettings::*set)(bool);
};

std::array<Flag, 8> flags(const Ui::KWPreferencesDlg &ui)
{
    using S = KWUserSettings;
    return {{
        {ui.m_backupSavedCheckBox, &S::backupOnSave, &S::setBackupOnSave},
        {ui.m_backupAutoCheckBox, &S::backupAutoOn, &S::setBackupAutoOn},
        {ui.m_warnOnDeleteGuestCheckBox, &S::warningDeleteGuest, &S::setWarningDeleteGuest},
        {ui.m_warnOnDeleteTableCheckBox, &S::warningDeleteTable, &S::setWarningDeleteTable},
        {ui.m_warnOnAutoLayoutCheckBox, &S::warningAutolayoutUnassign,
         &S::setWarningAutolayoutUnassign},
        {ui.m_warnOnDuplicateGuestNameCheckBox, &S::warningDuplicateGuest,
         &S::setWarningDuplicateGuest},
        {ui.m_showToolTipsCheckBox, &S::miscShowToolTips, &S::setMiscShowToolTips},
        {ui.m_autoCapitaliseNames, &S::miscCapitaliseNames, &S::setMiscCapitaliseNames},
    }};
}

/// A spin box and the setting that it stands for.
struct Number
{
    QSpinBox *box;
    int (KWUserSettings::*get)() const;
    void (KWUserSettings::*set)(int);
};

std::array<Number, 3> numbers(const Ui::KWPreferencesDlg &ui)
{
    using S = KWUserSettings;
    return {{
        {ui.m_backupAutoSpinBox, &S::backupAutoInterval, &S::setBackupAutoInterval},
        {ui.m_solverSecondsSpinBox, &S::solverMaxSeconds, &S::setSolverMaxSeconds},
        {ui.m_solverGenerationsSpinBox, &S::solverMaxGenerationsUnimproved,
         &S::setSolverMaxGenerationsUnimproved},
    }};
}

/// A radio button and the stop criterion that it stands for.
struct Criterion
{
    QRadioButton *button;
    KWUserSettings::StopCriteria value;
};

std::array<Criterion, 3> criteria(const Ui::KWPreferencesDlg &ui)
{
    return {{
        {ui.m_solverSecondsRadioButton, KWUserSettings::StopAfterSeconds},
        {ui.m_solverGenerationsRadioButton, KWUserSettings::StopAfterGenerations},
        {ui.m_solverEitherRadioButton, KWUserSettings::StopAfterEither},
    }};
}
} // namespace

KWPreferencesDlgImpl::KWPreferencesDlgImpl(QWidget *parent, KWUserSettings *settings)
    : KWHelpDialog(parent)
    , m_ui(std::make_unique<Ui::KWPreferencesDlg>())
    , m_settings(settings)
{
    m_ui->setupUi(this);
    m_ui->m_solverSecondsLabel->installEventFilter(this);
    m_ui->m_solverGenerationsLabel->installEventFilter(this);
    load();
    finish(QStringLiteral("Preferences_window.htm"), m_ui->m_helpButton);
    adjustSize();
}

KWPreferencesDlgImpl::~KWPreferencesDlgImpl() = default;

void KWPreferencesDlgImpl::load()
{
    for (const Flag &flag : flags(*m_ui))
        flag.box->setChecked((m_settings->*flag.get)());
    for (const Number &number : numbers(*m_ui))
        number.box->setValue((m_settings->*number.get)());
    for (const Criterion &criterion : criteria(*m_ui)) {
        if (criterion.value == m_settings->solverStopCriteria())
            criterion.button->setChecked(true);
    }
}

void KWPreferencesDlgImpl::accept()
{
    for (const Flag &flag : flags(*m_ui))
        (m_settings->*flag.set)(flag.box->isChecked());
    for (const Number &number : numbers(*m_ui))
        (m_settings->*number.set)(number.box->value());
    for (const Criterion &criterion : criteria(*m_ui)) {
        if (criterion.button->isChecked())
            m_settings->setSolverStopCriteria(criterion.value);
    }
    setToolTipsEnabled(m_ui->m_showToolTipsCheckBox->isChecked());
    QDialog::accept();
}

void KWPreferencesDlgImpl::languageChange()
{
    m_ui->retranslateUi(this);
}

// The text of two radio buttons stands behind their spin boxes, in labels of its own.
bool KWPreferencesDlgImpl::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton) {
        if (watched == m_ui->m_solverSecondsLabel)
            m_ui->m_solverSecondsRadioButton->setChecked(true);
        else if (watched == m_ui->m_solverGenerationsLabel)
            m_ui->m_solverGenerationsRadioButton->setChecked(true);
    }
    return KWHelpDialog::eventFilter(watched, event);
}
