// The feature bits from the user's and the system's config folders.
#include "SETUP_Utility.h"

#include "feature_table.h"
#include "mime_apps.h"

SETUP_Utility::SETUP_Utility() = default;

SETUP_Utility::~SETUP_Utility() = default;

bool SETUP_Utility::getFlexBit(unsigned short bit, bool &value)
{
    const std::optional<bool> known = KivHost::featureBit(bit, KivHost::XdgFolders::fromEnvironment().configFolders);
    if (known)
        value = *known;
    return known.has_value();
}
