#include "card_state.h"

#include "UTIL_MMCSD.h"

#include <cstring>

namespace KivHost {

CardState cardStateOf(const BlockReport &block)
{
    CardState state;
    if (!block.mediaAvailable || block.size == 0)
        return state;
    state.inserted = true;
    state.label = block.idLabel.toUtf8();
    state.writeProtected = block.readOnly || block.readOnlyMount;
    if (block.encrypted) {
        state.locked = !block.hasCleartext;
        return state;
    }
    const QString &usage = block.idUsage;
    state.unformatted = usage.isEmpty();
    state.invalid = !usage.isEmpty() && !(usage == QLatin1String("filesystem") && block.hasFilesystem);
    return state;
}

namespace {

// At most max bytes of text, without a UTF-8 sequence cut in the middle.
QByteArray cutUtf8(const QByteArray &text, int max)
{
    if (text.size() <= max)
        return text;
    // Back to the first byte of the character that the cut would split.
    int end = max;
    while (end > 0 && (uchar(text[end]) & 0xC0) == 0x80)
        --end;
    return text.left(end);
}

} // namespace

bool fillCardInfo(const CardState &state, unsigned char *info)
{
    if (!info)
        return false;
    std::memset(info, 0, UTIL_MMCSD_INFO_SIZE);
    if (!state.inserted)
        return false;
    if (state.writeProtected)
        info[UTIL_MMCSD_CARD_FLAGS_BYTE] |= UTIL_MMCSD_WRITE_PROTECTED;
    if (state.locked)
        info[UTIL_MMCSD_CARD_FLAGS_BYTE] |= UTIL_MMCSD_LOCKED;
    else if (state.unformatted)
        info[UTIL_MMCSD_FORMAT_FLAGS_BYTE] = UTIL_MMCSD_UNFORMATTED;
    else if (!state.invalid)
        info[UTIL_MMCSD_FORMAT_FLAGS_BYTE] = UTIL_MMCSD_FORMATTED;
    const QByteArray label = cutUtf8(state.label, UTIL_MMCSD_LABEL_LENGTH);
    std::memcpy(info + UTIL_MMCSD_LABEL_OFFSET, label.constData(), size_t(label.size()));
    return true;
}

} // namespace KivHost
