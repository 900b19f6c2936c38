// The memory card driver's report.
#pragma once

#include "platform_export.h"

// Size of the card information record that UTIL_GetMMCSDInfo fills.
#define UTIL_MMCSD_INFO_SIZE 148

// What the record holds where: flags of the card in one byte, flags of its
// format in another, and the volume label. No other byte is read.
inline constexpr int UTIL_MMCSD_CARD_FLAGS_BYTE = 0;
inline constexpr unsigned char UTIL_MMCSD_WRITE_PROTECTED = 0x01;
inline constexpr unsigned char UTIL_MMCSD_LOCKED = 0x02;
inline constexpr unsigned char UTIL_MMCSD_EXTRA_FLAG = 0x08;
inline constexpr int UTIL_MMCSD_FORMAT_FLAGS_BYTE = 2;
inline constexpr unsigned char UTIL_MMCSD_UNFORMATTED = 0x02;
inline constexpr unsigned char UTIL_MMCSD_FORMATTED = 0x04;
// The label fills its field without a terminator when it is as long as the field.
inline constexpr int UTIL_MMCSD_LABEL_OFFSET = 76;
inline constexpr int UTIL_MMCSD_LABEL_LENGTH = 11;

extern "C" {
// 1 when a card is inserted; other values mean no usable card.
KIVPLATFORM_EXPORT int UTIL_GetMMCSDStatus(void);
// Fills the caller's UTIL_MMCSD_INFO_SIZE-byte block; non-zero on success.
KIVPLATFORM_EXPORT int UTIL_GetMMCSDInfo(unsigned char *info, const char *device);
}
