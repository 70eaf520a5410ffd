#include "support/gui/fakeview.h"

FakeView::FakeView(KWDocument *document, const QString &name)
    : KWView(document)
{
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
}

void FakeView::beginUpdateBlock()
{
    write(u"block");
    KWView::beginUpdateBlock();
}

void FakeView::endUpdateBlock()
{
    write(u"unblock");
    KWView::endUpdateBlock();
}

void FakeView::note(QStringView call)
{
    write(call);
    onCall();
}

void FakeView::write(QStringView call)
{
    calls.append(call.toString());
    if (log)
        log->append(objectName() + u' ' + call.toString());
}

void FakeView::note(QStringView call, int argument)
{
    note(QStringLiteral("%1 %2").arg(call).arg(argument));
}
