#include "randomuser.h"

#include "dice.h"
#include "gesturelog.h"
#include "gui/dialogs/kwautolayoutprogressdlgimpl.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {
/// How often a dialog that does not go is tried before it is closed by force.
constexpr int patience = 3;
constexpr const char *rounds = "rounds";
constexpr const char *inUse = "in use";

QString described(const QWidget *widget)
{
    return u"%1 %2"_s.arg(QString::fromLatin1(widget->metaObject()->className()),
                          widget->objectName());
}

QString someText(Dice &dice)
{
    const QStringList texts{u"Ann"_s,   u"Åsa \"Ö\""_s, u"<b>&amp;"_s, QString(),
                            u"%1 %2"_s, u"7"_s,         u"  "_s,       u"Dr. Édouard O'Neill"_s};
    return dice.oneOf(texts);
}
} // namespace

RandomUser::RandomUser(const QWidget &window, Dice &dice, GestureLog &log)
    : m_window(window)
    , m_dice(dice)
    , m_log(log)
{
    connect(&m_timer, &QTimer::timeout, this, &RandomUser::look);
    m_timer.start(0);
}

void RandomUser::look()
{
    QWidget *window = QApplication::activePopupWidget();
    if (!window)
        window = QApplication::activeModalWidget();
    if (!window || !window->isVisible() || window->property(inUse).toBool())
        return;
    window->setProperty(inUse, true);
    // Not from here, since a timer does not fire again while its slot runs.
    QTimer::singleShot(0, window, [this, window] {
        if (auto *menu = qobject_cast<QMenu *>(window))
            useMenu(menu);
        else if (auto *dialog = qobject_cast<QDialog *>(window))
            useDialog(dialog);
        else
            window->close();
    });
}

void RandomUser::useMenu(QMenu *menu)
{
    const QPointer<QMenu> guard = menu;
    QList<QAction *> enabled;
    for (QAction *action : menu->actions()) {
        if (action->isEnabled() && !action->isSeparator())
            enabled.append(action);
    }
    if (enabled.isEmpty() || m_dice.oneIn(3)) {
        m_log.note(u"Esc in the menu"_s);
        QTest::keyClick(menu, Qt::Key_Escape);
    } else {
        QAction *action = m_dice.oneOf(enabled);
        m_log.note(u"menu: "_s + action->objectName());
        menu->setActiveAction(action);
        QTest::keyClick(menu, Qt::Key_Return);
    }
    if (guard)
        guard->setProperty(inUse, false);
}

QList<QWidget *> RandomUser::usableParts(const QWidget &window)
{
    QList<QWidget *> parts;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        // The button in a line edit comes and goes little by little.
        const bool inner = qobject_cast<QAbstractSpinBox *>(widget->parentWidget()) ||
                           qobject_cast<QLineEdit *>(widget->parentWidget()) ||
                           qobject_cast<QComboBox *>(widget->parentWidget());
        const bool known = qobject_cast<QAbstractButton *>(widget) ||
                           qobject_cast<QLineEdit *>(widget) || qobject_cast<QTextEdit *>(widget) ||
                           qobject_cast<QAbstractSpinBox *>(widget) ||
                           qobject_cast<QComboBox *>(widget) || qobject_cast<QTabBar *>(widget) ||
                           qobject_cast<QListWidget *>(widget);
        if (known && !inner && widget->isVisible() && widget->isEnabled() &&
            widget->window() == window.window())
            parts.append(widget);
    }
    return parts;
}

void RandomUser::use(QWidget *widget)
{
    m_log.note(u"uses "_s + described(widget));
    if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
        edit->setFocus();
        if (m_dice.oneIn(4))
            edit->selectAll();
        // Pasted, since a key can give single letters only.
        edit->insert(someText(m_dice));
        QTest::keyClick(edit, Qt::Key_X, m_dice.oneIn(2) ? Qt::ShiftModifier : Qt::NoModifier);
    } else if (auto *text = qobject_cast<QTextEdit *>(widget)) {
        text->setPlainText(someText(m_dice));
    } else if (auto *number = qobject_cast<QSpinBox *>(widget)) {
        const int some = std::min(12, number->maximum() - number->minimum() + 1);
        number->setValue(number->minimum() + m_dice.below(some));
    } else if (auto *spin = qobject_cast<QAbstractSpinBox *>(widget)) {
        spin->stepBy(m_dice.below(5) - 2);
    } else if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        for (int i = m_dice.below(4); i > 0; --i)
            QTest::keyClick(combo, m_dice.oneIn(2) ? Qt::Key_Down : Qt::Key_Up);
    } else if (auto *tabs = qobject_cast<QTabBar *>(widget)) {
        tabs->setCurrentIndex(m_dice.below(tabs->count()));
    } else if (auto *list = qobject_cast<QListWidget *>(widget)) {
        list->setCurrentRow(m_dice.below(list->count()));
    } else {
        QTest::mouseClick(widget, Qt::LeftButton, {}, widget->rect().center());
    }
}

// A menu bar of the desktop, or an aid for the disabled, could reach them.
void RandomUser::checkCommands(const QDialog &dialog)
{
    for (const QAction *action : m_window.findChildren<QAction *>()) {
        if (action->isEnabled() && !action->menu() && action->objectName().startsWith(u"m_"_s)) {
            m_faults.append(u"%1 is on under %2"_s.arg(action->objectName(), described(&dialog)));
            return;
        }
    }
}

void RandomUser::useDialog(QDialog *dialog)
{
    const QPointer<QDialog> guard = dialog;
    checkCommands(*dialog);
    if (qobject_cast<KWAutoLayoutProgressDlgImpl *>(dialog)) {
        // It goes by itself.
        if (m_dice.oneIn(4)) {
            m_log.note(u"stops the layout"_s);
            dialog->close();
        }
        return;
    }
    const int round = dialog->property(rounds).toInt();
    dialog->setProperty(rounds, round + 1);
    m_log.note(u"in %1 \"%2\""_s.arg(described(dialog), dialog->windowTitle()));
    for (int i = m_dice.below(6); i > 0 && guard && dialog->isVisible(); --i) {
        const QList<QWidget *> parts = usableParts(*dialog);
        if (!parts.isEmpty())
            use(m_dice.oneOf(parts));
    }
    if (guard && dialog->isVisible()) {
        if (round >= patience)
            dialog->done(QDialog::Rejected);
        else
            close(dialog);
    }
    if (guard)
        guard->setProperty(inUse, false);
}

void RandomUser::close(QDialog *dialog)
{
    QPushButton *chosen = nullptr;
    for (QPushButton *button : dialog->findChildren<QPushButton *>()) {
        if (button->isDefault() && button->isVisible())
            chosen = button;
    }
    const int way = m_dice.below(6);
    if (way > 1 && chosen && chosen->isEnabled()) {
        m_log.note(u"presses "_s + described(chosen));
        QTest::mouseClick(chosen, Qt::LeftButton);
    } else if (way == 0) {
        m_log.note(u"closes it"_s);
        dialog->close();
    } else {
        m_log.note(u"Esc"_s);
        QTest::keyClick(dialog, Qt::Key_Escape);
    }
}
