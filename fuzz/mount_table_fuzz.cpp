// The partition table built from arbitrary mount table text, with the card
// driver's answers taken from the input's first three bytes.
#include "core/partition_builder.h"

#include <UTIL_MMCSD.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

// The driver's flags, a label of up to 15 bytes, whether it reports at all
// and whether a card is inserted, all from three bytes.
class Answers : public Tambro::CardAndSimAnswers
{
public:
    explicit Answers(const uint8_t *card) : m_card{card[0], card[1], card[2]} {}
    bool cardInfo(unsigned char *info) const override
    {
        info[0] = m_card[0];
        info[2] = m_card[1];
        std::memset(info + 76, 'L', m_card[2] % 16);
        return (m_card[2] & 0x80) == 0;
    }
    QString megaSimName() const override { return QStringLiteral("SIM"); }
    int cardStatus() const override { return m_card[2] & 0x40 ? 1 : 0; }

private:
    uint8_t m_card[3];
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 3)
        return 0;
    const QByteArray mountTable =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data + 3), qsizetype(size - 3));
    const Tambro::PartitionTable table = Tambro::buildPartitionTable(mountTable, Answers(data));
    // Numbered 1, 2, 3... in device type order, every text field terminated.
    int previousType = Tambro::PhoneMemory;
    for (int number = 1; number <= table.count(); ++number) {
        const Tambro::PartitionInfo *entry = table.findByNumber(number);
        if (!entry || entry->deviceType < previousType
            || strnlen(entry->mountDir, sizeof entry->mountDir) == sizeof entry->mountDir
            || strnlen(entry->label, sizeof entry->label) == sizeof entry->label)
            std::abort();
        previousType = entry->deviceType;
    }
    return 0;
}
