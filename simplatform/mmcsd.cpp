#include "UTIL_MMCSD.h"

#include "device.h"
#include "journal.h"

#include <QJsonValue>
#include <QString>

#include <cstring>

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
    info[UTIL_MMCSD_CARD_FLAGS_BYTE] = card.cardFlags;
    info[UTIL_MMCSD_FORMAT_FLAGS_BYTE] = card.formatFlags;
    std::memcpy(info + UTIL_MMCSD_LABEL_OFFSET, card.label.constData(), size_t(card.label.size()));
    return card.info;
}
