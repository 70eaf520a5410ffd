#include "gui/framework/kwfindbar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTextEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

QToolButton *button(QWidget *parent, const QString &text, const QString &toolTip)
{
    auto *result = new QToolButton(parent);
    result->setText(text);
    result->setToolTip(toolTip);
    result->setAutoRaise(true);
    return result;
}
} // namespace

KWFindBar::KWFindBar(QTextEdit *text, QWidget *parent)
    : QWidget(parent)
    , m_text(text)
    , m_wordsEdit(new QLineEdit(this))
    , m_resultLabel(new QLabel(this))
{
    auto *label = new QLabel(tr("Find on this &page:"), this);
    label->setBuddy(m_wordsEdit);
    m_wordsEdit->setObjectName(QStringLiteral("wordsEdit"));
    m_wordsEdit->setToolTip(tr("Words to look for"));
    m_wordsEdit->setClearButtonEnabled(true);
    m_wordsEdit->setMinimumWidth(16 * fontMetrics().averageCharWidth());
    m_wordsEdit->setMaximumWidth(300);
    m_resultLabel->setObjectName(QStringLiteral("resultLabel"));
    m_resultLabel->setWordWrap(true);
    QToolButton *previous =
        button(this, tr("Previous"), tr("Find the words further up (Shift+F3)"));
    QToolButton *next = button(this, tr("Next"), tr("Find the words further down (F3)"));
    QToolButton *close = button(this, tr("Done"), tr("Stop looking for words (Esc)"));

    // In two rows, since the window is narrow beside a dialog.
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(6, 3, 6, 3);
    auto *words = new QHBoxLayout;
    words->addWidget(label);
    words->addWidget(m_wordsEdit, 1);
    words->addStretch();
    words->addWidget(close);
    rows->addLayout(words);
    auto *places = new QHBoxLayout;
    places->addWidget(previous);
    places->addWidget(next);
    places->addWidget(m_resultLabel, 1);
    rows->addLayout(places);

    connect(m_wordsEdit, &QLineEdit::textChanged, this, &KWFindBar::findAsTyped);
    connect(m_wordsEdit, &QLineEdit::returnPressed, this, &KWFindBar::findNext);
    connect(previous, &QToolButton::clicked, this, &KWFindBar::findPrevious);
    connect(next, &QToolButton::clicked, this, &KWFindBar::findNext);
    connect(close, &QToolButton::clicked, this, &KWFindBar::finish);
    hide();
}

void KWFindBar::start()
{
    show();
    m_wordsEdit->setFocus();
    m_wordsEdit->selectAll();
}

void KWFindBar::findNext()
{
    find({});
}

void KWFindBar::findPrevious()
{
    find(QTextDocument::FindBackward);
}

void KWFindBar::finish()
{
    hide();
    m_text->setFocus();
}

void KWFindBar::findAsTyped()
{
    // A longer word may still be the one that is found already.
    QTextCursor cursor = m_text->textCursor();
    cursor.setPosition(cursor.selectionStart());
    m_text->setTextCursor(cursor);
    m_resultLabel->clear();
    if (!m_wordsEdit->text().isEmpty())
        find({});
}

void KWFindBar::find(QTextDocument::FindFlags flags)
{
    const QString words = m_wordsEdit->text();
    if (!isVisible() || words.isEmpty()) {
        start();
        return;
    }
    m_resultLabel->clear();
    if (m_text->find(words, flags))
        return;

    const QTextCursor before = m_text->textCursor();
    const bool backward = flags.testFlag(QTextDocument::FindBackward);
    m_text->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    if (m_text->find(words, flags)) {
        m_resultLabel->setText(backward ? tr("Went on from the end of the page")
                                        : tr("Went on from the top of the page"));
    } else {
        m_text->setTextCursor(before);
        m_resultLabel->setText(tr("Not found on this page"));
    }
}
