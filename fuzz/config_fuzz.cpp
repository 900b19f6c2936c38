// Configuration files: any bytes parse, and ZConfig, reading them as a file,
// answers every look-up as the parse says.
#include "fuzz_input.h"

#include "ZConfig.h"
#include "keyfile.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

namespace {

// The input as a file that lives in memory, so that millions of runs do not touch the disk.
const QString &asFile(const uint8_t *data, size_t size)
{
    static const int fd = memfd_create("config_fuzz", 0);
    static const QString path = QStringLiteral("/proc/self/fd/%1").arg(fd);
    check(fd >= 0 && ftruncate(fd, 0) == 0, "cannot use an in-memory file");
    for (size_t done = 0; done < size;) {
        const ssize_t written = pwrite(fd, data + done, size - done, off_t(done));
        check(written > 0, "cannot write the in-memory file");
        done += size_t(written);
    }
    return path;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // Warnings about bad lines would bury the fuzzer's own output.
    static const QtMessageHandler quiet = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    Q_UNUSED(quiet);
    const QByteArray input = QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    const KeyFile file = KeyFile::parse(input, QStringLiteral("fuzz"));
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
