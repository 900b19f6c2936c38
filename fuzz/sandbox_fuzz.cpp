// kivsim's [sandbox] settings, and the device folder's entries and every value
// of the section resolved in a tree of links that stay inside, climb out, jump
// to the host and loop: a resolved path never leaves the folder.
#include "fuzz_input.h"

#include "confinedpath.h"
#include "phonelayout.h"
#include "platformcommon/keyfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdint>

static bool isInside(const QString &path, const QString &folder)
{
    return path == folder || (path.startsWith(folder + u'/') && !path.split(u'/').contains(QStringLiteral("..")));
}

// Where the path's deepest existing part really is: the kernel follows its links.
static QString realPlace(QString path)
{
    while (!QFileInfo::exists(path))
        path = QFileInfo(path).path();
    return QFileInfo(path).canonicalFilePath();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir dir;
    static const QString root = QFileInfo(dir.path()).canonicalFilePath();
    static const bool made = QDir(root).mkpath(QStringLiteral("phone/x")) && QDir(root).mkdir(QStringLiteral("tambro"))
        && QFile::link("..", root + "/phone/up") && QFile::link("../..", root + "/phone/out") && QFile::link("/tmp", root + "/megasim")
        && QFile::link("phone/up/phone/x", root + "/card") && QFile::link("tambro/../phone/out/x", root + "/data_resource")
        && QFile::link("mtab", root + "/mtab");
    check(made, "cannot make the tree of links");
    const KeyFile file = KeyFile::parse(bytes(data, size), QStringLiteral("fuzz"));
    QStringList warnings;
    const SandboxSettings settings = SandboxSettings::from(file, QStringLiteral("fuzz"), warnings);
    check(settings.phoneSize >= 0 && settings.cardSize >= 0 && settings.megaSimSize >= 0 && isInside(QDir(root).filePath(settings.mountTable), root),
          "a negative size, or a mount table outside the device folder");
    QStringList paths = PhoneLayout::deviceEntries(settings);
    for (const QString &key : file.keys(QStringLiteral("sandbox")))
        paths << file.value(QStringLiteral("sandbox"), key);
    QString error;
    for (const QString &path : std::as_const(paths)) {
        const std::optional<QString> resolved = resolveInside(root, path, error);
        check(!resolved || (isInside(*resolved, root) && isInside(realPlace(*resolved), root)), "a resolved path leaves the folder");
    }
    return 0;
}
