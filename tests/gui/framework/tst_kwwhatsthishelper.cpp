#include "guitest.h"
#include "kwwhatsthishelper.h"
#include "testplan.h"

#include <QVBoxLayout>

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
};

GUI_TEST_MAIN(TestKWWhatsThisHelper)
#include "tst_kwwhatsthishelper.moc"
