#pragma once

#include "eventlog.h"
#include "fakemainwindow.h"
#include "guestform.h"
#include "kwguestdlgimpl.h"

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

/// Writes down the plan's events and the undo points in one list, as "undo Insert guest".
class LoggingWindow : public FakeMainWindow
{
public:
    void saveUndoState(const QString &label) override
    {
        FakeMainWindow::saveUndoState(label);
        m_steps += m_log.take();
        m_steps += s("undo ") + label;
        m_wasBusy = QApplication::overrideCursor() != nullptr;
    }

    /// The steps since the last call.
    QStringList takeSteps()
    {
        const QStringList steps = m_steps + m_log.take();
        m_steps.clear();
        return steps;
    }
    /// Whether the busy cursor was up at the last undo point.
    bool wasBusy() const { return m_wasBusy; }

private:
    EventLog m_log{*document()};
    QStringList m_steps;
    bool m_wasBusy = false;
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
