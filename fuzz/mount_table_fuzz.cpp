// The partition table built from arbitrary mount table text, with the card
// driver's answers taken from the input's first byte.
#include "fuzz_input.h"

#include "core/partition_builder.h"

#include <UTIL_MMCSD.h>

#include <cstdint>
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
    const Tambro::PartitionTable table = Tambro::buildPartitionTable(bytes(data + 1, size - 1), Answers(data[0]));
    // Numbered 1, 2, 3... in device type order, every text field terminated.
    int previousType = Tambro::PhoneMemory;
    for (int number = 1; number <= table.count(); ++number) {
        const Tambro::PartitionInfo *entry = table.findByNumber(number);
        check(entry && entry->deviceType >= previousType
                  && strnlen(entry->mountDir, sizeof entry->mountDir) < sizeof entry->mountDir
                  && strnlen(entry->label, sizeof entry->label) < sizeof entry->label,
              "a partition out of order, or a text field not terminated");
        previousType = entry->deviceType;
    }
    return 0;
}
