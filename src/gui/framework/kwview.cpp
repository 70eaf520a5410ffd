#include "gui/framework/kwview.h"

#include "core/model/kwdocument.h"

#include <QWidget>

KWView::KWView(KWDocument *document)
    : m_document(document)
{
}

KWView::~KWView() = default;

void KWView::markModified()
{
    m_document->setModified(true);
}

void KWView::beginUpdateBlock()
{
    ++m_updateBlock;
    applyUpdateBlock();
}

void KWView::endUpdateBlock()
{
    --m_updateBlock;
    applyUpdateBlock();
}

void KWView::applyUpdateBlock()
{
    if (auto *widget = dynamic_cast<QWidget *>(this))
        widget->setUpdatesEnabled(m_updateBlock <= 0);
}
