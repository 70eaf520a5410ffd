#include "core/model/kwdocument.h"
#include "core/model/kwgreedyseating.h"

void KWDocument::randomLayout()
{
    KWGreedySeating::seatEverybody(*this);
}

KWGuest *KWDocument::randomUnseatedGuest() const
{
    return KWGreedySeating(*this).anyGuest();
}

KWGuest *KWDocument::bestGuestForSeat(const KWTable *table, int seat) const
{
    return KWGreedySeating(*this).bestGuestFor(*table, seat);
}
