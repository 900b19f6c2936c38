// Configuration files: any bytes parse, and ZConfig, reading them as a file,
// answers every look-up as the parse says.
#include "fuzz_input.h"

#include "ZConfig.h"
#include "keyfile.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    quietMessages();
    const KeyFile file = KeyFile::parse(bytes(data, size), QStringLiteral("fuzz"));
    const ZConfig config(asFile(data, size), false);
    for (const KeyFile::Section &section : file.sections()) {
        // Names are kept as written, but never hold what ends or breaks a header.
        check(!section.name.isEmpty() && !section.name.contains(u']') && !section.name.contains(QChar(0))
                  && file.section(section.name) == &section,
              "a section name breaks a header");
        QMap<QString, QString> entries;
        check(config.getGroupEntriesKeyList(section.name, entries) && entries.size() == section.entries.size(),
              "a group differs from the parse");
        for (const KeyFile::Entry &entry : section.entries) {
            check(!entry.key.isEmpty() && !entry.key.contains(u'=') && !entry.key.contains(QChar(0)),
                  "a key holds what cannot be in one");
            check(entries.value(entry.key) == entry.value && file.value(section.name, entry.key) == entry.value
                      && section.findIgnoringCase(entry.key) == section.find(entry.key),
                  "a value differs from the parse");
            const std::optional<qint64> number = KeyFile::toNumber(entry.value);
            const bool fitsInt = number && *number == int(*number);
            check(config.readNumEntry(section.name, entry.key, -7) == (fitsInt ? int(*number) : -7),
                  "a number differs from the parse");
        }
    }
    return 0;
}
