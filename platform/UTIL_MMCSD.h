// The memory card driver's report.
#pragma once

#include "platform_export.h"

// Size of the card information record that UTIL_GetMMCSDInfo fills.
#define UTIL_MMCSD_INFO_SIZE 148

extern "C" {
// 1 when a card is inserted; other values mean no usable card.
KIVPLATFORM_EXPORT int UTIL_GetMMCSDStatus(void);
// Fills the caller's UTIL_MMCSD_INFO_SIZE-byte block; non-zero on success.
KIVPLATFORM_EXPORT int UTIL_GetMMCSDInfo(unsigned char *info, const char *device);
}
