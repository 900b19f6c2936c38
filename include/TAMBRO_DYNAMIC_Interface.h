/// \file
/// The optional services library of the phone, "libkivtambro_util.so":
/// installing Java applications and packages, previews, bookmarks, sharing,
/// themes, quick messages and printing. It is loaded when a holder is made
/// and unloaded when it goes; every call answers a fixed default when the
/// library or its service object is missing.
#pragma once

#include "kivtambro_export.h"

#include <QString>
#include <QStringList>

/// How a file is applied by Theme_ApplytoFile; passed through as it is, the
/// values are the services library's.
enum TAMBRO_APPLY_TYPE {
    TAMBRO_APPLY_WALLPAPER = 0, ///< as the wallpaper
    TAMBRO_APPLY_SCREEN_SAVER = 1, ///< as the screen saver
    TAMBRO_APPLY_RING_TONE = 2, ///< as the ring tone
};

/// The service object that the services library implements. The order of
/// its virtual operations is the calling contract with a library compiled
/// without this header: it must never change.
///
/// The library makes the object with its exported function
/// TAMBRO_EXPORT_CreateInterface and deletes it with
/// TAMBRO_EXPORT_DeleteInterface. The arguments are the services library's,
/// passed through unchanged, and so are the answers where no comment says
/// what they mean.
class TAMBRO_UTIL_Interface
{
public:
    /// Deleted through the services library's TAMBRO_EXPORT_DeleteInterface.
    virtual ~TAMBRO_UTIL_Interface() {}
    /// Reads a Java descriptor.
    /// 0 on success; archiveName and needsArchive tell what the descriptor names.
    /// number is the services library's count of what it describes.
    virtual int J2ME_JAID_ViewJad(const QString &jadPath, QString &archiveName, int &number,
                                  bool &needsArchive, int installArgument) = 0;
    /// Installs a Java archive, with its descriptor or an empty descriptor path.
    /// Non-zero when installed.
    virtual int JAVA_Install(const QString &path, const QString &descriptorPath, int installArgument) = 0;
    /// Uninstalls a Java application.
    virtual int JAVA_Uninstall(int, bool, unsigned int) = 0;
    /// Installs a native application package (an "mpkg" file).
    virtual int QT_Install(const QString &packagePath) = 0;
    /// The media player's preview of a file.
    virtual int MP_Preview(const QString &, const QString &) = 0;
    /// The services library's ME preview of a file.
    virtual int ME_Preview(const QString &) = 0;
    /// The preview of a light pattern (a gnx file).
    virtual int GLINT_Preview(const QString &) = 0;
    /// Edits a bookmark file in the browser.
    virtual int Browser_EditBookmark(const QString &) = 0;
    /// Shares the files by Bluetooth.
    virtual int BlueTooth_ShareFiles(QStringList &) = 0;
    /// Adds a bookmark in the browser.
    virtual int Browser_AddBookmark() = 0;
    /// Adds a bookmark of the text given to the browser's bookmarks.
    virtual int Browser_AddBookmark(const QString &) = 0;
    /// The URL of a bookmark file, into url; url is left as it was when the
    /// file has none.
    virtual void Browser_GetUrl(const QString &bookmarkPath, QString &url) = 0;
    /// Updates the title of a bookmark file.
    virtual int UpdateBookmarkTitle(const QString &) = 0;
    /// Shares the files by e-mail.
    virtual int Email_ShareFiles(QStringList &) = 0;
    /// Applies a file as the wallpaper, the screen saver or the ring tone.
    virtual int Theme_ApplytoFile(const QString &, TAMBRO_APPLY_TYPE) = 0;
    /// Applies a file: the services library's SDMgr operation.
    virtual int SDMgr_ApplytoFile(const QString &, bool) = 0;
    /// Picks a contact for a quick message, into the two texts.
    virtual int QuickSend_GetContact(QString &, QString &) = 0;
    /// Sends a quick message.
    virtual int QuickSend_SendMessage(const QString &, const QString &, const QString &, bool) = 0;
    /// The printing service's methods, through the pointer.
    virtual int PRTCTR_GetPrintMethods(int *) = 0;
    /// Whether the printing service supports the index given.
    virtual int PRTCTR_IsIndexSupported(int) = 0;
    /// Prints the files.
    virtual int PRTCTR_Print(int, bool, QStringList) = 0;
};

/// Holds the services library for one request. Each method forwards to the
/// service object; without one it returns 0, except J2ME_JAID_ViewJad (1),
/// MP_Preview and PRTCTR_Print (-1), and Browser_GetUrl leaves url alone.
///
/// Making a holder loads the library (dlopen() of its bare name, found on the
/// library path, as the platform provides it); the holder's end unloads it.
/// Without the library every method quietly answers its default: nothing
/// tells the caller that the service is missing. The arguments and answers of
/// the forwarded calls are those of TAMBRO_UTIL_Interface.
class KIVTAMBRO_EXPORT TAMBRO_DYNAMIC_Interface
{
public:
    /// Loads libkivtambro_util.so and makes its service object through its
    /// TAMBRO_EXPORT_CreateInterface function: no service object when the
    /// library, the function or its object is missing.
    TAMBRO_DYNAMIC_Interface();
    /// Deletes the service object through the library's
    /// TAMBRO_EXPORT_DeleteInterface (left to the library's unloading when it
    /// has none), then unloads the library.
    ~TAMBRO_DYNAMIC_Interface();
    /// Not copyable: a holder owns its library and service object.
    TAMBRO_DYNAMIC_Interface(const TAMBRO_DYNAMIC_Interface &) = delete;
    /// Not copyable: a holder owns its library and service object.
    TAMBRO_DYNAMIC_Interface &operator=(const TAMBRO_DYNAMIC_Interface &) = delete;

    /// Reads a Java descriptor: 0 on success; 1 without a service object, the
    /// outputs then untouched.
    int J2ME_JAID_ViewJad(const QString &jadPath, QString &archiveName, int &number, bool &needsArchive,
                          int installArgument);
    /// Installs a Java archive: non-zero when installed; 0 without a service
    /// object.
    int JAVA_Install(const QString &path, const QString &descriptorPath, int installArgument);
    /// Uninstalls a Java application; 0 without a service object.
    int JAVA_Uninstall(int, bool, unsigned int);
    /// Installs a native application package; 0 without a service object.
    int QT_Install(const QString &packagePath);
    /// The media player's preview; -1 without a service object.
    int MP_Preview(const QString &, const QString &);
    /// The ME preview; 0 without a service object.
    int ME_Preview(const QString &);
    /// The preview of a light pattern; 0 without a service object.
    int GLINT_Preview(const QString &);
    /// Edits a bookmark file in the browser; 0 without a service object.
    int Browser_EditBookmark(const QString &);
    /// Shares the files by Bluetooth; 0 without a service object.
    int BlueTooth_ShareFiles(QStringList &);
    /// Shares the files by e-mail; 0 without a service object.
    int Email_ShareFiles(QStringList &);
    /// Adds a bookmark in the browser; 0 without a service object.
    int Browser_AddBookmark();
    /// Adds a bookmark of the text given; 0 without a service object.
    int Browser_AddBookmark(const QString &);
    /// The URL of a bookmark file, into url; url is left alone without a
    /// service object, and when the file has none.
    void Browser_GetUrl(const QString &bookmarkPath, QString &url);
    /// Updates the title of a bookmark file; 0 without a service object.
    int UpdateBookmarkTitle(const QString &);
    /// Applies a file as TAMBRO_APPLY_TYPE says; 0 without a service object.
    int Theme_ApplytoFile(const QString &, TAMBRO_APPLY_TYPE);
    /// Applies a file (the SDMgr operation); 0 without a service object.
    int SDMgr_ApplytoFile(const QString &, bool);
    /// Picks a contact for a quick message; 0 without a service object, the
    /// texts then untouched.
    int QuickSend_GetContact(QString &, QString &);
    /// Sends a quick message; 0 without a service object.
    int QuickSend_SendMessage(const QString &, const QString &, const QString &, bool);
    /// The printing service's methods, through the pointer; 0 without a
    /// service object, nothing written then.
    int PRTCTR_GetPrintMethods(int *);
    /// Whether the printing service supports the index given; 0 without a
    /// service object.
    int PRTCTR_IsIndexSupported(int);
    /// Prints the files, of which the service gets a copy of its own; -1
    /// without a service object.
    int PRTCTR_Print(int, bool, QStringList);

private:
    void *m_library;
    TAMBRO_UTIL_Interface *m_service;
};
