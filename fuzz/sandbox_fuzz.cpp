// kivsim's [sandbox] settings, and the device folder's entries and every value
// of the section resolved in a tree of links that stay inside, climb out, jump
// to the host and loop: a resolved path never leaves the folder.
#include "fuzz_input.h"

#include "confinedpath.h"
#include "phonelayout.h"
#include "simplatform/keyfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdint>

namespace {

const char *const links[][2] = {{"phone/up", ".."}, {"phone/out", "../.."}, {"card", "phone/up/phone/x"},
                                {"megasim", "/tmp"}, {"data_resource", "tambro/../phone/out/x"}, {"mtab", "mtab"}};

bool isInside(const QString &path, const QString &folder)
{
    return path == folder || path.startsWith(folder + u'/');
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static QTemporaryDir dir;
    static const QString root = QFileInfo(dir.path()).canonicalFilePath();
    static const bool made = QDir(root).mkpath(QStringLiteral("phone/x")) && QDir(root).mkdir(QStringLiteral("tambro"))
        && std::all_of(std::begin(links), std::end(links), [](auto link) { return QFile::link(link[1], root + u'/' + link[0]); });
    check(made, "cannot make the tree of links");
    const KeyFile file = KeyFile::parse(bytes(data, size), QStringLiteral("fuzz"));
    QStringList warnings;
    const SandboxSettings settings = SandboxSettings::from(file, QStringLiteral("fuzz"), warnings);
    check(settings.phoneSize >= 0 && settings.cardSize >= 0 && settings.megaSimSize >= 0
              && !QDir::isAbsolutePath(settings.mountTable) && !settings.mountTable.split(u'/').contains(QStringLiteral("..")),
          "a negative size, or a mount table outside the device folder");
    QStringList paths = PhoneLayout::deviceEntries(settings);
    for (const QString &key : file.keys(QStringLiteral("sandbox")))
        paths << file.value(QStringLiteral("sandbox"), key);
    QString error;
    for (const QString &path : std::as_const(paths)) {
        const std::optional<QString> resolved = resolveInside(root, path, error);
        check(!resolved || (isInside(*resolved, root) && !resolved->split(u'/').contains(QStringLiteral(".."))
                            && (!QFileInfo::exists(*resolved) || isInside(QFileInfo(*resolved).canonicalFilePath(), root))),
              "a resolved path leaves the folder");
    }
    return 0;
}
