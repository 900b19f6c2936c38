// Arbitrary recipients: two at signs are never an e-mail address, a letter
// makes no phone number, and nothing is both.
#include "fuzz_input.h"

#include <TAMBRO_Global.h>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = utf16Text(data, size);
    const bool mobile = TAMBRO_Global::isMobile(text);
    const bool email = TAMBRO_Global::isEmail(text);
    check(!email || text.count(u'@') == 1, "an e-mail address without exactly one at sign");
    bool hasLetter = false;
    for (const QChar c : text)
        hasLetter = hasLetter || c.isLetter();
    check(!mobile || !hasLetter, "a phone number with a letter");
    check(!(mobile && email), "both a phone number and an e-mail address");
    return 0;
}
