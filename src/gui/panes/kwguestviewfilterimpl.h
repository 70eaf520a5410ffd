#pragma once

#include "gui/framework/kwplansettingspanel.h"

#include <QWidget>

#include <array>
#include <memory>

class KWGuestsListView;
class QCheckBox;
class QKeyEvent;

namespace Ui {
class KWGuestViewFilter;
}

/// The panel above a list of guests: what to find in it and which columns it shows. The choice of
/// columns is folded away at first. The list is not owned.
class KWGuestViewFilterImpl : public QWidget, public KWPlanSettingsPanel
{
    Q_OBJECT

public:
    /// `view` may be null until setView().
    KWGuestViewFilterImpl(QWidget *parent, KWGuestsListView *view);
    ~KWGuestViewFilterImpl() override;

    void setView(KWGuestsListView *view);

    void readSettings(const KWViewSettings &settings) override;
    void writeSettings(KWViewSettings &settings) const override;

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
    void findNext(bool above);
    void showFound(bool found);
    bool handleFindKey(QKeyEvent &key);

    std::unique_ptr<Ui::KWGuestViewFilter> m_ui;
    KWGuestsListView *m_view = nullptr;
};
