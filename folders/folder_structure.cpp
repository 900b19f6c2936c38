// Opening the folder structure file once, and creating the key words' folders.
#include "folder_structure.h"


#include "TAMBRO_FixedFolder.h"

#include <ZConfig.h>

#include <QMap>

namespace {

bool initialized = false;
// Kept for the life of the process: queries read it until exit.
ZConfig *configuration = nullptr;

} // namespace

QString TAMBRO_FixedFolder::m_sFMRootPath = Tambro::rootPathFromEnvironment();

void TAMBRO_FixedFolder::initialize()
{
    // Set first, so that a failure below is never retried.
    if (initialized)
        return;
    initialized = true;
    configuration = new ZConfig(Tambro::folderStructureFilePath(), false);

    QMap<QString, QString> keyWords;
    configuration->getGroupEntriesKeyList(QLatin1String(Tambro::KeyWordGroup), keyWords);
    for (const QString &relativePath : std::as_const(keyWords)) {
        if (const std::optional<QString> path = Tambro::fixedFolderPath(relativePath))
            Tambro::makeFolderPath(*path);
    }
}

namespace Tambro {

const ZConfig &folderStructure()
{
    TAMBRO_FixedFolder::initialize();
    return *configuration;
}

} // namespace Tambro
