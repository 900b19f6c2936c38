// Opening one file with the application that handles it: an installer, the
// browser, the messaging application, the image viewer, the media player or
// the platform's document launcher; or a notice telling why it cannot be.
#pragma once

#include "kivtambro_export.h"

#include <QString>

class QWidget;
class RES_ICON_Reader;

class KIVTAMBRO_EXPORT TAMBRO_FileHandle
{
public:
    // fileType is the caller's type string, normally the lower-cased
    // extension; folderPath the folder that holds the file. installArgument
    // goes to the Java installer; previewFlag asks the image viewer for its
    // preview rather than the normal view. The parent is kept, not used:
    // notices have no parent.
    TAMBRO_FileHandle(const QString &filePath, const QString &fileType, const QString &folderPath,
                      QWidget *parent, int installArgument, bool previewFlag);
    ~TAMBRO_FileHandle();
    TAMBRO_FileHandle(const TAMBRO_FileHandle &) = delete;
    TAMBRO_FileHandle &operator=(const TAMBRO_FileHandle &) = delete;

    // Sends the file to its application: 1 only when a Java application was
    // installed, 0 for every other outcome.
    int Handle();

private:
    QString m_folderPath;
    QString m_filePath;
    QString m_fileType;
    [[maybe_unused]] QWidget *m_parent; // kept as given: notices have no parent
    RES_ICON_Reader *m_iconReader;
    int m_installArgument;
    bool m_previewFlag;
};

KIVTAMBRO_BEGIN_C_EXPORTS
// Opens an existing file as the file manager does, with the image viewer's
// preview: 1 when the file exists (whatever became of it), else 0.
KIVTAMBRO_EXPORT int TAMBRO_OpenFile(const QString &path, int installArgument);
KIVTAMBRO_END_C_EXPORTS
