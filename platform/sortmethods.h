// Name collation of the phone's sorter.
#pragma once

#include "platform_export.h"

extern "C" {
// Compares two NUL-terminated big-endian UCS-2 strings; negative, zero or positive.
KIVPLATFORM_EXPORT int sortmethods_str_cmp(const unsigned short *first,
                                           const unsigned short *second);
}
