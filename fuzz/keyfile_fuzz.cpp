// Fuzz target of the key-file parser: any input parses, and what it keeps is
// consistent with the look-ups.
#include "keyfile.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    const KeyFile file = KeyFile::parse(input, QStringLiteral("fuzz"));

    for (const QString &warning : file.warnings()) {
        if (!warning.startsWith(QLatin1String("fuzz:")))
            std::abort();
    }
    for (const KeyFile::Section &section : file.sections()) {
        // Names are kept as written, blanks included, but never hold what
        // ends or breaks a header.
        if (section.name.isEmpty() || section.name.contains(u']') || section.name.contains(QChar(0))
            || file.section(section.name) != &section)
            std::abort();
        for (const KeyFile::Entry &entry : section.entries) {
            if (entry.key.isEmpty() || entry.key.contains(u'=') || entry.key.contains(QChar(0)))
                std::abort();
            if (file.value(section.name, entry.key) != entry.value
                || section.findIgnoringCase(entry.key) != section.find(entry.key))
                std::abort();
            KeyFile::toNumber(entry.value);
        }
    }
    return 0;
}
