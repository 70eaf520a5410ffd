#include "support/gui/openwindow.h"

#include "gui/framework/kwcloseabletabwidget.h"
#include "gui/shell/kwstatusbar.h"
#include "gui/shell/kwtoptab.h"
#include "support/gui/fakeview.h"
#include "support/testplan.h"

OpenWindow::OpenWindow(const QStringList &arguments)
    : window(nullptr, [this] { return now; })
{
    window.initialise(nullptr, QStringList{s("ambrelune")} + arguments);
    // The focus comes with it, which makes a view active.
    if (!QTest::qWaitForWindowActive(&window))
        qWarning("the window is not active");
    window.setActiveView(nullptr);
}

QAction *OpenWindow::action(const char *name) const
{
    auto *found = window.findChild<QAction *>(s(name));
    if (!found)
        qFatal("there is no action %s", name);
    return found;
}

void OpenWindow::run(const char *name)
{
    QAction *found = action(name);
    QVERIFY2(found->isEnabled(), name);
    found->trigger();
}

FakeView *OpenWindow::addView(KWCloseableTabWidget *tab, const QString &name)
{
    QPixmap icon(16, 16);
    icon.fill(Qt::blue);
    auto *view = new FakeView(window.document(), name);
    const bool isReal = tab->findChild<QWidget *>(name) != nullptr;
    tab->addPage(view, icon, name.toUtf8().constData());
    if (isReal)
        tab->setCurrentWidget(view);
    return view;
}

void OpenWindow::removeTopPages()
{
    window.panes()->topTab()->clear();
}

QString OpenWindow::counts() const
{
    for (const QLabel *label : window.findChild<KWStatusBar *>()->findChildren<QLabel *>()) {
        if (!label->text().isEmpty())
            return label->text();
    }
    return {};
}

void OpenWindow::quietSettings()
{
    TestHome::clearSettings();
    KWUserSettings settings;
    settings.setHelpShowGettingStarted(false);
    settings.setAppearanceMaximised(false);
}
