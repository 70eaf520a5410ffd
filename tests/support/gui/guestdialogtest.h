#pragma once

#include "gui/dialogs/kwguestdlgimpl.h"
#include "support/gui/guestform.h"
#include "support/gui/loggingwindow.h"

/// The dialog for guests and groups with the parts that tests work with.
struct GuestDialog : KWGuestDlgImpl
{
    using KWGuestDlgImpl::KWGuestDlgImpl;

    GuestForm ui{*this};
    QTabWidget *tabs = child<QTabWidget>(*this, "m_tabWidget");
    QLineEdit *groupName = child<QLineEdit>(*this, "m_groupNameEdit");
    QTextEdit *groupNotes = child<QTextEdit>(*this, "m_groupNotesEdit");
    QLineEdit *city = child<QLineEdit>(*this, "m_cityEdit");

    void click(const char *button)
    {
        QTest::mouseClick(child<QPushButton>(*this, button), Qt::LeftButton);
    }
};

/// All texts and values of a guest, for comparing at a glance.
inline QString facts(const KWGuest &guest)
{
    const auto flag = [](bool on, const char *word) { return on ? s(word) : QString(); };
    return QStringList{guest.displayName(),
                       guest.title(),
                       guest.firstName(),
                       guest.lastName(),
                       guest.meal(),
                       guest.genderString(),
                       guest.ageString(),
                       guest.notes(),
                       flag(guest.isLocked(), "locked") + flag(guest.isVip(), "vip") +
                           flag(guest.isAccepted(), "accepted")}
        .join(u'|');
}

/// The same of a group, of whose contact the town stands for all.
inline QString facts(const KWGroup &group)
{
    return QStringList{group.name(), group.contact().city, group.notes()}.join(u'|');
}
