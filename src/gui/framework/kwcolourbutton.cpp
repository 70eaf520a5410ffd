#include "gui/framework/kwcolourbutton.h"

#include "gui/framework/kwprompts.h"

#include <QEvent>
#include <QPushButton>
#include <QVBoxLayout>

KWColourButton::KWColourButton(QWidget *parent)
    : QFrame(parent)
    , m_button(new QPushButton(QStringLiteral("..."), this))
    , m_interior(new QFrame(m_button))
{
    auto *layout = new QVBoxLayout(this);
    layout->setObjectName(QStringLiteral("layout"));
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_button);

    // The colour covers the button's text and leaves its edge, which shows the focus.
    auto *face = new QVBoxLayout(m_button);
    constexpr int edge = 4;
    face->setContentsMargins(edge, edge, edge, edge);
    face->addWidget(m_interior);
    m_interior->setObjectName(QStringLiteral("KWColourButton interior"));
    m_interior->setFrameShape(QFrame::Box);
    m_interior->setBackgroundRole(QPalette::Window);
    m_interior->setAutoFillBackground(true);
    m_interior->setAttribute(Qt::WA_TransparentForMouseEvents);

    setFocusProxy(m_button);
    describe();
    connect(m_button, &QPushButton::clicked, this, &KWColourButton::changeColour);
}

QColor KWColourButton::colour() const
{
    return m_interior->palette().color(QPalette::Window);
}

void KWColourButton::setColour(const QColor &colour)
{
    QPalette palette = m_interior->palette();
    palette.setColor(QPalette::Window, colour);
    m_interior->setPalette(palette);
    describe();
}

// Those who cannot see the colour are told what it is for, and what it is.
void KWColourButton::describe()
{
    m_button->setAccessibleName(toolTip());
    m_button->setAccessibleDescription(tr("red %1, green %2, blue %3")
                                           .arg(colour().red())
                                           .arg(colour().green())
                                           .arg(colour().blue()));
}

void KWColourButton::changeColour()
{
    const std::optional<QColor> chosen = prompts().askColour(this, colour());
    if (!chosen)
        return;
    setColour(*chosen);
    emit colourChanged(*chosen);
}

bool KWColourButton::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTipChange || event->type() == QEvent::LanguageChange)
        describe();
    return QFrame::event(event);
}
