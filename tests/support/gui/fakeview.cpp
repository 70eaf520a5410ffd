#include "fakeview.h"

FakeView::FakeView(KWDocument *document, const QString &name)
    : KWView(document)
{
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
}

void FakeView::deleteSelection()
{
    note(u"deleteSelection");
    onDelete();
}

void FakeView::beginUpdateBlock()
{
    note(u"block");
    KWView::beginUpdateBlock();
}

void FakeView::endUpdateBlock()
{
    note(u"unblock");
    KWView::endUpdateBlock();
}

void FakeView::note(QStringView call)
{
    calls.append(call.toString());
    if (log)
        log->append(objectName() + u' ' + call.toString());
}

void FakeView::note(QStringView call, int argument)
{
    note(QStringLiteral("%1 %2").arg(call).arg(argument));
}
