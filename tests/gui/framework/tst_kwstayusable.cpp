#include "gui/framework/kwstayusable.h"

#include "support/gui/guitest.h"
#include "support/registeredtest.h"

#include <QDialog>
#include <QPushButton>
#include <QWidget>
#include <QWindow>

using namespace Qt::StringLiterals;

// A window that stays usable while modal dialogs are up. Clicks go through the window system's
// entrance, where modality is looked after.

namespace {

/// A window with a button over all of it that counts clicks.
class ClickWindow : public QWidget
{
public:
    explicit ClickWindow(QWidget *parent = nullptr)
        : QWidget(parent, Qt::Window)
    {
        auto *button = new QPushButton(this);
        button->setGeometry(0, 0, 100, 100);
        resize(100, 100);
        connect(button, &QPushButton::clicked, this, [this] { ++clicks; });
    }

    /// Whether a click reaches the button.
    bool takesClicks()
    {
        const int before = clicks;
        QTest::mouseClick(windowHandle(), Qt::LeftButton, {}, {50, 50});
        QCoreApplication::processEvents();
        return clicks == before + 1;
    }

    int clicks = 0;
};

class StayingWindow : public ClickWindow
{
public:
    explicit StayingWindow(QWidget *parent = nullptr)
        : ClickWindow(parent)
    {
        new KWStayUsable(this);
    }
};

/// A modal dialog that is up while it lives.
class ModalDialog : public QDialog
{
public:
    explicit ModalDialog(QWidget *parent = nullptr)
        : QDialog(parent)
    {
        setModal(true);
        show();
    }
};
} // namespace

class TestStayUsable : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void anOrdinaryWindowIsBlocked();
    void aWindowShownOverADialogIsUsable();
    void aWindowThatIsUpBeforeTheDialogStaysUsable();
    void theDialogItselfAndTheMainWindowAreAsBefore();
    void dialogsOverDialogsLeaveItUsable();
    void itOutlivesTheDialog();
    void itGoesBackToItsOwner();
    void aWindowWithoutAnOwnerBelongsToNobodyAgain();
    void itsOwnDialogBlocksIt();
    void itIsItsOwnersWhileItIsHidden();
    void aDialogRunByExecLeavesItUsable();

private:
    std::unique_ptr<ClickWindow> m_main;
    QPointer<StayingWindow> m_window;
};

void TestStayUsable::init()
{
    m_main = std::make_unique<ClickWindow>();
    m_main->show();
    m_window = new StayingWindow(m_main.get());
}

void TestStayUsable::cleanup()
{
    m_main.reset();
    QVERIFY(!m_window);
}

void TestStayUsable::anOrdinaryWindowIsBlocked()
{
    ClickWindow ordinary(m_main.get());
    ordinary.show();
    QVERIFY(ordinary.takesClicks());
    const ModalDialog dialog(m_main.get());
    QVERIFY(!ordinary.takesClicks());
}

void TestStayUsable::aWindowShownOverADialogIsUsable()
{
    const ModalDialog dialog(m_main.get());
    m_window->show();
    QTRY_VERIFY(m_window->takesClicks());
}

void TestStayUsable::aWindowThatIsUpBeforeTheDialogStaysUsable()
{
    m_window->show();
    QTRY_VERIFY(m_window->takesClicks());
    const ModalDialog dialog(m_main.get());
    QTRY_VERIFY(m_window->takesClicks());
}

void TestStayUsable::theDialogItselfAndTheMainWindowAreAsBefore()
{
    m_window->show();
    ModalDialog dialog(m_main.get());
    QSignalSpy clicked(&dialog, &QDialog::rejected);
    QVERIFY(!m_main->takesClicks());
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
    QCOMPARE(clicked.size(), 1);
    QVERIFY(m_main->takesClicks());
    QTRY_VERIFY(m_window->takesClicks());
}

void TestStayUsable::dialogsOverDialogsLeaveItUsable()
{
    m_window->show();
    const ModalDialog lower(m_main.get());
    {
        // Messages of the program have the main window as parent, not the dialog.
        const ModalDialog upper(m_main.get());
        QTRY_VERIFY(m_window->takesClicks());
    }
    QTRY_COMPARE(m_window->windowHandle()->transientParent(), lower.windowHandle());
    QTRY_VERIFY(m_window->takesClicks());
}

void TestStayUsable::itOutlivesTheDialog()
{
    {
        const ModalDialog dialog(m_main.get());
        m_window->show();
    }
    QVERIFY(m_window);
    QVERIFY(m_window->isVisible());
    QTRY_VERIFY(m_window->takesClicks());
}

void TestStayUsable::itGoesBackToItsOwner()
{
    {
        const ModalDialog dialog(m_main.get());
        m_window->show();
        QTRY_COMPARE(m_window->windowHandle()->transientParent(), dialog.windowHandle());
    }
    QTRY_COMPARE(m_window->windowHandle()->transientParent(), m_main->windowHandle());
    QCOMPARE(m_window->parentWidget(), m_main.get());
}

void TestStayUsable::aWindowWithoutAnOwnerBelongsToNobodyAgain()
{
    StayingWindow window;
    {
        const ModalDialog dialog;
        window.show();
        QTRY_VERIFY(window.takesClicks());
        QVERIFY(window.windowHandle()->transientParent());
    }
    QTRY_COMPARE(window.windowHandle()->transientParent(), nullptr);
    QTRY_VERIFY(window.takesClicks());
}

void TestStayUsable::itsOwnDialogBlocksIt()
{
    m_window->show();
    {
        const ModalDialog dialog(m_window);
        QVERIFY(!m_window->takesClicks());
    }
    QTRY_VERIFY(m_window->takesClicks());
}

void TestStayUsable::itIsItsOwnersWhileItIsHidden()
{
    const ModalDialog dialog(m_main.get());
    m_window->show();
    QTRY_COMPARE(m_window->windowHandle()->transientParent(), dialog.windowHandle());
    m_window->hide();
    QCOMPARE(m_window->windowHandle()->transientParent(), m_main->windowHandle());
    m_window->show();
    QTRY_VERIFY(m_window->takesClicks());
}

void TestStayUsable::aDialogRunByExecLeavesItUsable()
{
    m_window->show();
    QDialog dialog(m_main.get());
    bool usable = false;
    QTimer::singleShot(0, &dialog, [&] {
        const auto close = qScopeGuard([&] { dialog.reject(); });
        QTRY_VERIFY(dialog.isVisible());
        QTRY_VERIFY(m_window->takesClicks());
        usable = true;
    });
    dialog.exec();
    QVERIFY(usable);
}

REGISTER_TEST(TestStayUsable)
#include "tst_kwstayusable.moc"
