#pragma once

#include <QWidget>

#include <array>
#include <memory>

class KWGuestsListView;
class QCheckBox;

namespace Ui {
class KWGuestViewFilter;
}

/// The panel above a list of guests: what to find in it and which columns it shows. The choice of
/// columns is folded away at first. The list is not owned.
class KWGuestViewFilterImpl : public QWidget
{
    Q_OBJECT

public:
    /// `view` may be null until setView().
    KWGuestViewFilterImpl(QWidget *parent, KWGuestsListView *view);
    ~KWGuestViewFilterImpl() override;

    void setView(KWGuestsListView *view);

    /// Which columns are shown, in the order in which a plan file has them.
    struct ShownColumns
    {
        bool displayName = true;
        bool lastName = true;
        bool vip = true;
        bool title = true;
        bool assigned = true;
        bool accepted = true;
        bool firstName = true;
        bool locked = true;
        bool meal = true;
        bool notes = true;
    };
    /// Unlike the user's own choice this does not count as a change of the plan.
    void setShownColumns(const ShownColumns &shown);
    ShownColumns shownColumns() const;

public slots:
    void showDisplayNameChanged(bool on);
    void showAll();
    void hideAll();
    void showTitleChanged(bool on);
    void showFirstNameChanged(bool on);
    void showLastNameChanged(bool on);
    void showAssignedChanged(bool on);
    void showLockedChanged(bool on);
    void showVIPChanged(bool on);
    void showAcceptedChanged(bool on);
    void showNotesChanged(bool on);
    /// A column that was dragged to nothing is hidden.
    void columnWidthHasChanged(int column, int oldWidth, int width);
    void showMealChanged(bool on);
    void find(const QString &text);
    void languageChange();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    /// In the order of the columns, from the display name.
    std::array<QCheckBox *, 10> boxes() const;
    void connectBoxes();
    void fold(bool folded);
    void changeColumn(int column, bool shown);

    std::unique_ptr<Ui::KWGuestViewFilter> m_ui;
    KWGuestsListView *m_view = nullptr;
};
