// The card driver: the card mounted at the phone's card folder, as UDisks2
// or the kernel reports it, asked anew each time as the phone's driver is.
#include "UTIL_MMCSD.h"

#include "card_state.h"

#include <KIV_Paths.h>

namespace {

KivHost::CardState cardAtTheCardFolder()
{
    KivHost::CardPlaces places;
    places.mountFolder = QLatin1String(KivPaths::MemoryCard);
    return KivHost::queryCardState(places);
}

} // namespace

int UTIL_GetMMCSDStatus(void)
{
    return cardAtTheCardFolder().inserted ? 1 : 0;
}

int UTIL_GetMMCSDInfo(unsigned char *info, const char *)
{
    return info && KivHost::fillCardInfo(cardAtTheCardFolder(), info) ? 1 : 0;
}
