// Fuzz target of the configuration reader: any bytes read as a file give a
// configuration, reading them twice gives the same one, and every group the
// key-file parser finds reads back the same through every look-up.
#include "ZConfig.h"
#include "keyfile.h"

#include <QString>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <sys/mman.h>
#include <unistd.h>

namespace {

void check(bool condition, const char *what)
{
    if (!condition) {
        std::fprintf(stderr, "zconfig_fuzz: %s\n", what);
        std::abort();
    }
}

// The input is handed to ZConfig as a file that lives in memory, so that
// millions of runs do not touch the disk.
class MemoryFile
{
public:
    MemoryFile() : m_fd(memfd_create("zconfig_fuzz", 0))
    {
        check(m_fd >= 0, "cannot make an in-memory file");
        m_path = QStringLiteral("/proc/self/fd/%1").arg(m_fd);
    }

    const QString &write(const uint8_t *data, size_t size)
    {
        check(ftruncate(m_fd, 0) == 0, "cannot empty the in-memory file");
        for (size_t done = 0; done < size;) {
            const ssize_t written = pwrite(m_fd, data + done, size - done, off_t(done));
            check(written > 0, "cannot write the in-memory file");
            done += size_t(written);
        }
        return m_path;
    }

private:
    int m_fd;
    QString m_path;
};

void checkEntry(const ZConfig &config, const QString &group, const KeyFile::Entry &entry)
{
    const QString missing = QStringLiteral("\x01missing");
    check(config.readEntry(group, entry.key, missing) == entry.value,
          "readEntry differs from the parse");
    const std::optional<qint64> number = KeyFile::toNumber(entry.value);
    const bool fitsInt = number && *number >= std::numeric_limits<int>::min()
                         && *number <= std::numeric_limits<int>::max();
    const int read = config.readNumEntry(group, entry.key, -7);
    check(fitsInt ? read == int(*number) : read == -7, "readNumEntry differs from the parse");
}

void checkGroup(const ZConfig &first, const ZConfig &second, const KeyFile::Section &section)
{
    QMap<QString, QString> entries, again;
    check(first.getGroupEntriesKeyList(section.name, entries), "a parsed group is missing");
    check(second.getGroupEntriesKeyList(section.name, again), "a group is missing on rereading");
    check(entries == again, "a group differs on rereading");
    check(entries.size() == section.entries.size(), "a group's entries differ from the parse");
    for (const KeyFile::Entry &entry : section.entries) {
        check(entries.value(entry.key) == entry.value, "a group's value differs from the parse");
        checkEntry(first, section.name, entry);
    }
    // No group name holds ']', so this one never exists.
    check(!first.getGroupEntriesKeyList(section.name + u']', entries) && entries.isEmpty(),
          "a group that cannot exist was found");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // The reader warns about bad lines; the warnings would bury the fuzzer's
    // own output.
    static const bool quiet = (qInstallMessageHandler([](QtMsgType, const QMessageLogContext &,
                                                         const QString &) {}),
                               true);
    static MemoryFile file;
    Q_UNUSED(quiet);

    const QString &path = file.write(data, size);
    const ZConfig first(path, false);
    const ZConfig second(path, false);
    const KeyFile parsed = KeyFile::parse(
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size)), path);
    for (const KeyFile::Section &section : parsed.sections())
        checkGroup(first, second, section);
    return 0;
}
