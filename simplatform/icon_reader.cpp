#include "RES_ICON_Reader.h"

#include "device.h"
#include "journal.h"
#include "warning.h"

#include "regularfile/regular_file.h"

#include <QDebug>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QString>

#include <atomic>

namespace {

// The built-in icon set, compiled into the library.
const QString builtInIconDir = QStringLiteral(":/kivsim/icons");
// Far above any icon of a phone's screen; a larger file is not read.
constexpr qint64 MaxIconBytes = 4 << 20;

// The icon file's bytes, empty when it is missing or cannot be an icon: a
// device's own icon folder may hold anything, a FIFO or /dev/zero included.
QByteArray iconData(const QString &dir, const QString &name)
{
    if (dir.isEmpty()) {
        QFile file(builtInIconDir + u'/' + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    const QString path = dir + u'/' + name;
    const Tambro::FileContent content = Tambro::readRegularFile(path, MaxIconBytes);
    if (!content.problem.isEmpty())
        platformWarning(QStringLiteral("icon %1 %2 and is not read").arg(path, content.problem));
    return content.data;
}

// Pixmaps need a QGuiApplication; command-line tools and GUI-less tests get
// null icons, with one notice instead of Qt's warning for every icon.
bool canMakePixmaps()
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return true;
    static std::atomic_bool told{false};
    if (!told.exchange(true))
        qWarning("kivsim: warning: icons are null pictures without a QGuiApplication");
    return false;
}

} // namespace

RES_ICON_Reader::RES_ICON_Reader() = default;

RES_ICON_Reader::~RES_ICON_Reader() = default;

QPixmap RES_ICON_Reader::getIcon(const char *name, bool big)
{
    Q_UNUSED(big); // each icon file holds a single size
    const QString iconName = QString::fromLatin1(name);
    if (KivSim::Journal::enabled())
        KivSim::Journal::Line("RES_ICON_Reader::getIcon").arg("name", iconName).write();
    // A name is a file of the icon folder, never a path out of it.
    if (iconName.isEmpty() || iconName.contains(u'/') || iconName == QLatin1String("..")
        || !canMakePixmaps())
        return QPixmap();
    // Read by its exact name: loading by file name would also try the name
    // with image suffixes added. Decoded by content, since the icon files may
    // hold PNG data under other suffixes.
    return QPixmap::fromImage(QImage::fromData(iconData(KivSim::device()->iconDir, iconName)));
}
