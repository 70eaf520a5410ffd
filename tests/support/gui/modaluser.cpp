#include "support/gui/modaluser.h"

#include <QApplication>
#include <QtTest>

namespace {
constexpr int interval = 10;
constexpr int patience = 3000 / interval;
} // namespace

ModalUser::ModalUser()
{
    connect(&m_timer, &QTimer::timeout, this, &ModalUser::look);
    m_timer.start(interval);
}

ModalUser::~ModalUser()
{
    if (!m_steps.isEmpty())
        QTest::qFail("a dialog that was expected did not come", __FILE__, __LINE__);
}

void ModalUser::look()
{
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible()) {
        m_served = nullptr;
        m_looksInVain = 0;
        return;
    }
    if (dialog != m_served && dialog->isActiveWindow() && !m_steps.isEmpty() &&
        m_steps.first()(dialog)) {
        m_steps.removeFirst();
        m_served = dialog;
        m_looksInVain = 0;
        return;
    }
    if (++m_looksInVain < patience)
        return;
    QTest::qFail(qPrintable(QStringLiteral("nobody answers the dialog \"%1\" (%2)")
                                .arg(dialog->windowTitle(),
                                     QString::fromLatin1(dialog->metaObject()->className()))),
                 __FILE__, __LINE__);
    m_looksInVain = 0;
    dialog->done(QDialog::Rejected);
}
