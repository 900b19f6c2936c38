// The partition table built from arbitrary mount table text, with the card
// driver's answers taken from the input's first byte.
#include "core/partition_builder.h"

#include <UTIL_MMCSD.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

// The card driver's flags and whether a card is inserted, from the first byte.
class Answers : public Tambro::CardAndSimAnswers
{
public:
    explicit Answers(uint8_t card) : m_card(card) {}
    bool cardInfo(unsigned char *info) const override
    {
        info[0] = m_card & 0x0F;
        info[2] = m_card >> 4;
        return true;
    }
    QString megaSimName() const override { return QStringLiteral("SIM"); }
    int cardStatus() const override { return m_card & 0x80 ? 1 : 0; }

private:
    uint8_t m_card;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    const QByteArray mountTable =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1));
    const Tambro::PartitionTable table = Tambro::buildPartitionTable(mountTable, Answers(data[0]));
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
