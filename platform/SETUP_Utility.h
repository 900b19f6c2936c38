// The phone's feature table ("flex bits").
#pragma once

#include "platform_export.h"

class KIVPLATFORM_EXPORT SETUP_Utility
{
public:
    SETUP_Utility();
    ~SETUP_Utility();

    // True when the table knows the bit; then value holds it. Otherwise value is untouched.
    bool getFlexBit(unsigned short bit, bool &value);
};
