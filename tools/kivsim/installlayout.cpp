#include "installlayout.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace InstallLayout {
namespace {

// True when kivsim runs from the build's program folder. That folder is a
// real path (the kernel's); the build's may have links.
bool runsFromBuild()
{
    return QCoreApplication::applicationDirPath() == QFileInfo(QStringLiteral(KIVSIM_BUILD_BINDIR)).canonicalFilePath();
}

// A path under the prefix kivsim is installed in: its program folder's parent.
QString underPrefix(const char *relative)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/" KIVSIM_BINDIR_TO_PREFIX "/")
                           + QLatin1String(relative));
}

QString builtOrInstalled(const char *built, const char *installed)
{
    return runsFromBuild() ? QString::fromUtf8(built) : underPrefix(installed);
}

} // namespace

QString ownFolder()
{
    return builtOrInstalled(KIVSIM_BUILD_DIR, KIVSIM_LIBDIR);
}

QString sampleDevice()
{
    return builtOrInstalled(KIVSIM_SOURCE_SAMPLE_DEVICE, KIVSIM_INSTALLED_SAMPLE_DEVICE);
}

QString simulatorPlatformFolder()
{
    return builtOrInstalled(KIVSIM_PLATFORM_DIR, KIVSIM_LIBDIR "/" KIVSIM_PLATFORM_SUBDIR);
}

QString simulatorServicesFolder()
{
    return builtOrInstalled(KIVSIM_SERVICES_DIR, KIVSIM_LIBDIR "/kivsim");
}

QString hostPlatformFolder()
{
    return builtOrInstalled(KIVSIM_HOST_PLATFORM_DIR, KIVSIM_LIBDIR "/" KIVSIM_HOST_PLATFORM_SUBDIR);
}

} // namespace InstallLayout
