/// \file
/// Opening one file with the application that handles it: an installer, the
/// browser, the messaging application, the image viewer, the media player or
/// the platform's document launcher; or a notice telling why it cannot be.
#pragma once

#include "kivtambro_export.h"

#include <QString>

class QWidget;
class RES_ICON_Reader;

/// One request to open a file: made with what the file manager knows of the
/// file, then sent with Handle(). Every request goes to another application
/// through the platform, or to the services library (see
/// TAMBRO_DYNAMIC_Interface), which is loaded for the request and unloaded
/// after it.
class KIVTAMBRO_EXPORT TAMBRO_FileHandle
{
public:
    /// fileType is the caller's type string, normally the lower-cased
    /// extension; folderPath the folder that holds the file. installArgument
    /// goes to the Java installer; previewFlag asks the image viewer for its
    /// preview rather than the normal view. The parent is kept, not used:
    /// notices have no parent.
    /// Nothing is checked or opened yet: the constructor only makes an icon
    /// reader of the platform's.
    TAMBRO_FileHandle(const QString &filePath, const QString &fileType, const QString &folderPath,
                      QWidget *parent, int installArgument, bool previewFlag);
    /// Frees the icon reader; a request already sent is not recalled.
    ~TAMBRO_FileHandle();
    /// Not copyable: a request owns its icon reader.
    TAMBRO_FileHandle(const TAMBRO_FileHandle &) = delete;
    /// Not copyable: a request owns its icon reader.
    TAMBRO_FileHandle &operator=(const TAMBRO_FileHandle &) = delete;

    /// Sends the file to its application: 1 only when a Java application was
    /// installed, 0 for every other outcome.
    ///
    /// The first rule that holds decides; the caller's type decides the first
    /// three, the path the others:
    /// 1. type "mpkg", while feature bit 162 (native packages) is on: the
    ///    services library installs the package. The bit is asked of the
    ///    platform's feature table on every call, whatever the type.
    /// 2. type "url" or "vbm", lower case only: the browser opens the URL that
    ///    the services library reads from the bookmark; without the library
    ///    it is asked to open an empty URL.
    /// 3. type "mms": the messaging application opens the saved message.
    /// 4. a contact (vcf) or calendar (vcs) file, by the path's last ".", any
    ///    case: a modal notice tells to open the Contacts or the Calendar
    ///    application. Handle() returns when the user has closed it.
    /// 5. the file name's suffix is jar, any case: the services library
    ///    installs the Java archive.
    /// 6. the suffix is jad: the services library reads the descriptor, and
    ///    when it needs an archive, the folder's first regular file of the
    ///    archive's name, case ignored, is installed with it; a missing
    ///    archive is told in a modal notice. Nothing happens without the
    ///    services library.
    /// 7. a picture, by the platform's MIME check: the image viewer shows it,
    ///    its preview with previewFlag, else its normal view in the sort order
    ///    of the settings file (TAMBRO_Global::getConfigFile(), read then).
    /// 8. anything else is a media or document launch, of which at most one
    ///    goes in two seconds in the whole process: the first always, then
    ///    one more than 2000 ms after the last that went; a refused one is
    ///    dropped silently and starts no new period. The media player plays
    ///    the file when the path's text after its last "." is found, in any
    ///    case, as a piece of its list of audio or video extensions (audio
    ///    first: "asf", "mi" and an empty extension play as audio); else the
    ///    platform's document launcher opens it.
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
/// Opens an existing file as the file manager does, with the image viewer's
/// preview: 1 when the file exists (whatever became of it), else 0.
/// The type is the file name's suffix, lower-cased, the folder the file's
/// absolute folder, as TAMBRO_FileHandle::Handle() then sends it. An existing
/// folder counts as a file here.
KIVTAMBRO_EXPORT int TAMBRO_OpenFile(const QString &path, int installArgument);
KIVTAMBRO_END_C_EXPORTS
