#pragma once

#include "gui/framework/kwhelpdialog.h"

#include <memory>

class KWContact;
class KWDocument;
class KWGroup;
class KWGuest;
struct KWGuestValues;

namespace Ui {
class KWGuestDlg;
}

/// The dialog that inserts a guest with a group of their own, edits a guest with their group, or
/// edits a group. What an opening has no use for is taken out of the form. The plan is written,
/// after an undo point, only if the dialog is accepted and its checks are passed.
class KWGuestDlgImpl : public KWHelpDialog
{
    Q_OBJECT

public:
    KWGuestDlgImpl(QWidget *parent, KWDocument *document);
    KWGuestDlgImpl(QWidget *parent, KWDocument *document, KWGuest *guest);
    KWGuestDlgImpl(QWidget *parent, KWDocument *document, KWGroup *group);
    ~KWGuestDlgImpl() override;

    /// Stays open if apply() refuses.
    void accept() override;

public slots:
    /// Writes the plan. False, after telling the user or asking, if what was entered may not be
    /// taken; the plan is untouched then.
    bool apply();
    /// Inserts the guest and closes, as accept() does.
    void add();
    void autoUpdateGroupName();
    void languageChange() override;

private:
    KWGuestDlgImpl(QWidget *parent, KWDocument *document, KWGuest *guest, KWGroup *group);

    void setUpInsert();
    void setUpEditGuest();
    void setUpEditGroup();
    void remove(QWidget *part);
    void fillGroup(const KWGroup &group);
    void fillChoices();
    void setDefaultFocus();
    void showTexts();
    void showSeat();
    void alignFields();
    void fitToScreen();

    /// The values of the form, first and last name stripped.
    KWGuestValues enteredValues() const;
    bool hasName(const KWGuestValues &values);
    bool mayHaveThisName(const KWGuestValues &values) const;
    void insertGuest(const KWGuestValues &values);
    void editGuest(const KWGuestValues &values);
    void editGroup(KWGroup *group);

    std::unique_ptr<Ui::KWGuestDlg> m_ui;
    /// Owns what was taken out of the form, which still has pointers to it.
    QWidget m_removed;
    KWDocument *m_document;
    /// Null unless a guest is edited.
    KWGuest *m_guest;
    /// Null unless a group is edited.
    KWGroup *m_group;
    bool m_groupNameEdited;
};
