// The handler's dispatch: the first row whose test holds decides.
#include "TAMBRO_FileHandle.h"

#include "TAMBRO_DYNAMIC_Interface.h"
#include "java_install.h"
#include "launch_guard.h"
#include "notices.h"
#include "requests.h"
#include "types/file_types.h"

#include <AM_LauncherClient.h>
#include <RES_ICON_Reader.h>
#include <SETUP_Utility.h>
#include <UTIL_MimeType.h>

#include <QFileInfo>

namespace {

constexpr unsigned short NativePackagesBit = 162;

// Read afresh on every call, unlike the cached switches.
bool nativePackagesAllowed()
{
    bool allowed = false;
    SETUP_Utility().getFlexBit(NativePackagesBit, allowed);
    return allowed;
}

// A missing services library leaves the URL empty, and the browser is asked anyway.
void openBookmark(const QString &filePath)
{
    QString url;
    {
        TAMBRO_DYNAMIC_Interface services;
        services.Browser_GetUrl(filePath, url);
    }
    AM_LauncherClient::loadURL(url);
}

} // namespace

TAMBRO_FileHandle::TAMBRO_FileHandle(const QString &filePath, const QString &fileType,
                                     const QString &folderPath, QWidget *parent, int installArgument,
                                     bool previewFlag)
    : m_folderPath(folderPath), m_filePath(filePath), m_fileType(fileType), m_parent(parent),
      m_iconReader(new RES_ICON_Reader), m_installArgument(installArgument), m_previewFlag(previewFlag)
{
}

TAMBRO_FileHandle::~TAMBRO_FileHandle()
{
    delete m_iconReader;
}

// The caller's type decides the first three rows, the path the others.
int TAMBRO_FileHandle::Handle()
{
    // The feature bit is asked first, whatever the type.
    if (nativePackagesAllowed() && m_fileType == QLatin1String("mpkg")) {
        TAMBRO_DYNAMIC_Interface().QT_Install(m_filePath);
        return 0;
    }
    if (m_fileType == QLatin1String("url") || m_fileType == QLatin1String("vbm")) {
        openBookmark(m_filePath);
        return 0;
    }
    if (m_fileType == QLatin1String("mms")) {
        Tambro::openSavedMessage(m_filePath);
        return 0;
    }
    if (Tambro::isVcardExtension(m_filePath) || Tambro::isVcalendarExtension(m_filePath)) {
        Tambro::showCannotAccess(m_filePath);
        return 0;
    }
    const QString extension = QFileInfo(m_filePath).suffix().toLower();
    if (extension == QLatin1String("jar"))
        return Tambro::installJavaArchive(m_filePath, m_installArgument) ? 1 : 0;
    if (extension == QLatin1String("jad"))
        return Tambro::installJavaDescriptor(m_filePath, m_folderPath, m_installArgument) ? 1 : 0;
    if (UTIL_MimeType::isPicture(m_filePath)) {
        Tambro::viewImage(m_filePath, m_previewFlag);
        return 0;
    }
    if (!Tambro::launchGuardAccepts())
        return 0;
    if (!Tambro::playMedia(m_filePath))
        AM_LauncherClient::openDocument(m_filePath, QString(), true, QString(), QByteArray());
    return 0;
}

int TAMBRO_OpenFile(const QString &path, int installArgument)
{
    const QFileInfo file(path);
    if (!file.exists())
        return 0;
    // Always the preview; Handle()'s own result is not the caller's concern.
    TAMBRO_FileHandle(path, file.suffix().toLower(), file.absolutePath(), nullptr, installArgument, true)
        .Handle();
    return 1;
}
