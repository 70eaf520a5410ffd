#include "gui/framework/kwmessages.h"
#include "support/gui/fakemainwindow.h"
#include "support/gui/guitest.h"
#include "support/gui/scriptedprompts.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QApplication>
#include <QDialog>
#include <QWidget>

namespace {

/// Answers with the last button and notes what was there while it was asked.
class NotingPrompts : public KWPrompts
{
public:
    NotingPrompts() { setPrompts(this); }
    ~NotingPrompts() override { setPrompts(nullptr); }
    Q_DISABLE_COPY_MOVE(NotingPrompts)

    int showMessage(QWidget *askedOver, const KWMessage &message) override
    {
        parent = askedOver;
        cursor = QApplication::overrideCursor()->shape();
        return static_cast<int>(message.buttons.size()) - 1;
    }

    QWidget *parent = nullptr;
    Qt::CursorShape cursor = Qt::WaitCursor;
};
} // namespace

class TestKWMessages : public QObject
{
    Q_OBJECT

private slots:
    void aWarningHasTheProductsNameAndTheFirstButtonAsDefault()
    {
        ScriptedPrompts user;
        user.answer(s("&No"));
        QCOMPARE(warningBox(s("Really?"), s("&Yes"), s("&No"), s("&Cancel")), 1);
        const KWMessage &asked = user.messages.first();
        QCOMPARE(asked.icon, KWMessage::Warning);
        QCOMPARE(asked.caption, s("Ambrelune"));
        QCOMPARE(asked.text, s("Really?"));
        QCOMPARE(asked.buttons, (QStringList{s("&Yes"), s("&No"), s("&Cancel")}));
        QCOMPARE(asked.defaultButton, 0);
    }

    void anErrorIsTheSameWithAnotherIcon()
    {
        ScriptedPrompts user;
        user.answer(s("&OK"));
        QCOMPARE(errorBox(s("It failed."), s("&OK")), 0);
        const KWMessage &asked = user.messages.first();
        QCOMPARE(asked.icon, KWMessage::Critical);
        QCOMPARE(asked.caption, s("Ambrelune"));
        QCOMPARE(asked.text, s("It failed."));
        QCOMPARE(asked.buttons, QStringList{s("&OK")});
        QCOMPARE(asked.defaultButton, 0);
    }

    void theArrowIsUpWhileTheUserIsAskedAlsoInABusyStretch()
    {
        NotingPrompts user;
        QApplication::setOverrideCursor(Qt::WaitCursor);
        QCOMPARE(errorBox(s("It failed."), s("&OK")), 0);
        QCOMPARE(user.cursor, Qt::ArrowCursor);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        QApplication::restoreOverrideCursor();
    }

    void theBoxStandsOverTheMainWindowIfThereIsOne()
    {
        NotingPrompts user;
        {
            FakeMainWindow window;
            QCOMPARE(warningBox(s("Really?"), s("&Yes"), s("&No")), 1);
            QCOMPARE(user.parent, window.widget());
        }
        warningBox(s("Really?"), s("&Yes"));
        QCOMPARE(user.parent, nullptr);
    }

    void theBoxStandsOverTheDialogThatItIsAbout()
    {
        NotingPrompts user;
        FakeMainWindow window;
        QDialog dialog;
        dialog.setModal(true);
        dialog.show();
        QTRY_COMPARE(QApplication::activeModalWidget(), &dialog);
        warningBox(s("Discard changes?"), s("&Yes"), s("&No"));
        QCOMPARE(user.parent, &dialog);
    }
};

REGISTER_TEST(TestKWMessages)
#include "tst_kwmessages.moc"
