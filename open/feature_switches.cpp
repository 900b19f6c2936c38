// The phone's feature switches that the application asks about, each read
// from the platform's feature table once per process.
#include "TAMBRO_Global.h"

#include <SETUP_Utility.h>

namespace {

struct FeatureSwitch
{
    unsigned short bit;
    bool read = false;
    bool value = false;

    // Marked read before asking: a table that cannot answer is not asked again.
    bool get()
    {
        if (!read) {
            read = true;
            SETUP_Utility().getFlexBit(bit, value);
        }
        return value;
    }
};

FeatureSwitch mmsBlog{149};
FeatureSwitch blogCenter{514};
FeatureSwitch email{205};
FeatureSwitch postcard{212};

} // namespace

bool TAMBRO_Global::getMMSBlogFlexFlag() { return mmsBlog.get(); }
bool TAMBRO_Global::getBlogCenterFlexFlag() { return blogCenter.get(); }
bool TAMBRO_Global::getEmailFlexFlag() { return email.get(); }
bool TAMBRO_Global::getPostcardFlexFlag() { return postcard.get(); }
