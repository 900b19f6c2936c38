#include "UTIL_MMCSD.h"

#include "device.h"
#include "journal.h"

#include <QJsonValue>
#include <QString>

#include <cstring>

namespace {

constexpr int labelOffset = 76;

} // namespace

int UTIL_GetMMCSDStatus(void)
{
    if (KivSim::Journal::enabled())
        KivSim::Journal::Line("UTIL_GetMMCSDStatus").write();
    return KivSim::device()->card.status;
}

int UTIL_GetMMCSDInfo(unsigned char *info, const char *device)
{
    if (KivSim::Journal::enabled()) {
        KivSim::Journal::Line("UTIL_GetMMCSDInfo")
            .arg("device", device ? QJsonValue(QString::fromLocal8Bit(device)) : QJsonValue())
            .write();
    }
    const KivSim::CardState card = KivSim::device()->card;
    if (card.info == 0 || !info)
        return 0;
    std::memset(info, 0, UTIL_MMCSD_INFO_SIZE);
    info[0] = card.byte0;
    info[2] = card.byte2;
    // The label field has no room for a terminator when the label is 11 bytes long.
    std::memcpy(info + labelOffset, card.label.constData(), size_t(card.label.size()));
    return card.info;
}
