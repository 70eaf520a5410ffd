#include "gui/framework/kwwhatsthishelper.h"
#include "support/gui/guitest.h"
#include "support/registeredtest.h"
#include "support/testplan.h"

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidget>

namespace {

/// Has a tool tip that tells the language.
class Window : public QWidget
{
public:
    Window() { child->setToolTip(s("Close")); }

    QPushButton *child = new QPushButton(this);

protected:
    void changeEvent(QEvent *event) override
    {
        QWidget::changeEvent(event);
        if (event->type() == QEvent::LanguageChange)
            child->setToolTip(s("Schließen"));
    }
};

void changeLanguage(QWidget &window)
{
    QEvent event(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&window, &event);
}
} // namespace

class TestKWWhatsThisHelper : public QObject
{
    Q_OBJECT

private slots:
    void aWidgetWithATipGetsItAsWhatsThisText()
    {
        QWidget window;
        auto *box = new QGroupBox(&window);
        auto *child = new QPushButton(&window);
        auto *grandchild = new QLineEdit(box);
        child->setToolTip(s("The child"));
        grandchild->setToolTip(s("The grandchild"));
        new KWWhatsThisHelper(&window);
        QCOMPARE(child->whatsThis(), s("The child"));
        QCOMPARE(grandchild->whatsThis(), s("The grandchild"));
        QCOMPARE(box->whatsThis(), QString());
    }

    void theDescriptionForReadersHasNoMarkUp()
    {
        QWidget window;
        auto *child = new QPushButton(&window);
        auto *plain = new QPushButton(&window);
        child->setToolTip(s("First name,<br>and the <b>given</b> one &amp; all"));
        plain->setToolTip(s("\"john\"->\"John\""));
        new KWWhatsThisHelper(&window);
        QCOMPARE(child->accessibleDescription(), s("First name, and the given one & all"));
        QCOMPARE(plain->accessibleDescription(), QString());
    }

    void aWhatsThisTextThatIsThereStays()
    {
        QWidget window;
        auto *child = new QPushButton(&window);
        child->setToolTip(s("Short"));
        child->setWhatsThis(s("At length"));
        new KWWhatsThisHelper(&window);
        QCOMPARE(child->whatsThis(), s("At length"));
    }

    void theWindowItselfIsLeftAlone()
    {
        QWidget window;
        window.setToolTip(s("The window"));
        new KWWhatsThisHelper(&window);
        QCOMPARE(window.whatsThis(), QString());
    }

    void whatIsMadeLaterGetsNothing()
    {
        QWidget window;
        const auto *helper = new KWWhatsThisHelper(&window);
        auto *late = new QPushButton(&window);
        late->setToolTip(s("Late"));
        QCoreApplication::processEvents();
        QCOMPARE(late->whatsThis(), QString());
        QCOMPARE(helper->parent(), &window);
    }

    void theTextFollowsTheLanguage()
    {
        Window window;
        new KWWhatsThisHelper(&window);
        QCOMPARE(window.child->whatsThis(), s("Close"));
        changeLanguage(window);
        QTRY_COMPARE(window.child->whatsThis(), s("Schließen"));
    }

    void inANewLanguageOtherTextsStayAndNoneIsAdded()
    {
        Window window;
        auto *late = new QPushButton(&window);
        window.child->setWhatsThis(s("At length"));
        new KWWhatsThisHelper(&window);
        late->setToolTip(s("Late"));
        changeLanguage(window);
        QCOMPARE(window.child->toolTip(), s("Schließen"));
        QCoreApplication::processEvents();
        QCOMPARE(window.child->whatsThis(), s("At length"));
        QCOMPARE(late->whatsThis(), QString());
    }

    void aWidgetThatIsGoneIsPassedOver()
    {
        Window window;
        auto *shortLived = new QPushButton(&window);
        shortLived->setToolTip(s("Soon gone"));
        new KWWhatsThisHelper(&window);
        changeLanguage(window);
        delete shortLived;
        QTRY_COMPARE(window.child->whatsThis(), s("Schließen"));
    }
};

REGISTER_TEST(TestKWWhatsThisHelper)
#include "tst_kwwhatsthishelper.moc"
