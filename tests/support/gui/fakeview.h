#pragma once

#include "gui/framework/kwview.h"

#include <QStringList>
#include <QWidget>

/// A view that answers as a test wants and writes down what it is told to do.
class FakeView : public QWidget, public KWView
{
    Q_OBJECT

public:
    explicit FakeView(KWDocument *document, const QString &name = {});

    /// The answers of the can...() operations, isLocked() and hasAccepted().
    struct Answers
    {
        bool canDelete = false;
        bool canEditProperties = false;
        bool canUnassign = false;
        bool canSetLocked = false;
        bool isLocked = false;
        bool canSetAccepted = false;
        bool hasAccepted = false;
        bool canPrint = false;
        bool canCopy = false;
        bool canSetAffinity = false;
        bool canRotate = false;
        bool showsSeats = false;
    };
    Answers answers;
    /// "setLocked 1", "block", ... in the order of the calls.
    QStringList calls;
    /// Runs inside each operation that changes, prints or copies something.
    std::function<void()> onCall = [] {};
    /// Every view appends its name and call here if it is set.
    QStringList *log = nullptr;

    void deleteSelection() override { note(u"deleteSelection"); }
    void editProperties() override { note(u"editProperties"); }
    void unassign() override { note(u"unassign"); }
    void print() override { note(u"print"); }
    void copy() override { note(u"copy"); }
    void rotate() override { note(u"rotate"); }
    void setAffinity(int value) override { note(u"setAffinity", value); }
    bool canDelete() override { return answers.canDelete; }
    bool canEditProperties() override { return answers.canEditProperties; }
    bool canUnassign() override { return answers.canUnassign; }
    void setLocked(bool locked) override { note(u"setLocked", locked); }
    bool canSetLocked() override { return answers.canSetLocked; }
    bool isLocked() override { return answers.isLocked; }
    void setAccepted(bool accepted) override { note(u"setAccepted", accepted); }
    bool canSetAccepted() override { return answers.canSetAccepted; }
    bool hasAccepted() override { return answers.hasAccepted; }
    bool canPrint() override { return answers.canPrint; }
    bool canCopy() override { return answers.canCopy; }
    bool canSetAffinity() override { return answers.canSetAffinity; }
    bool canRotate() override { return answers.canRotate; }
    void showGuest(KWGuest *) override { note(u"showGuest"); }
    bool showsSeats() const override { return answers.showsSeats; }
    void beginUpdateBlock() override;
    void endUpdateBlock() override;

private:
    void note(QStringView call);
    void note(QStringView call, int argument);
    void write(QStringView call);
};
