// The optional services library of the phone, "libkivtambro_util.so":
// installing Java applications and packages, previews, bookmarks, sharing,
// themes, quick messages and printing. It is loaded when a holder is made
// and unloaded when it goes; every call answers a fixed default when the
// library or its service object is missing.
#pragma once

#include "kivtambro_export.h"

#include <QString>
#include <QStringList>

// How a file is applied by Theme_ApplytoFile; passed through as it is, the
// values are the services library's.
enum TAMBRO_APPLY_TYPE {
    TAMBRO_APPLY_WALLPAPER = 0,
    TAMBRO_APPLY_SCREEN_SAVER = 1,
    TAMBRO_APPLY_RING_TONE = 2,
};

// The service object that the services library implements. The order of
// its virtual operations is the calling contract with a library compiled
// without this header: it must never change.
class TAMBRO_UTIL_Interface
{
public:
    virtual ~TAMBRO_UTIL_Interface() {}
    // 0 on success; archiveName and needsArchive tell what the descriptor names.
    virtual int J2ME_JAID_ViewJad(const QString &jadPath, QString &archiveName, int &number,
                                  bool &needsArchive, int installArgument) = 0;
    // Non-zero when installed.
    virtual int JAVA_Install(const QString &path, const QString &descriptorPath, int installArgument) = 0;
    virtual int JAVA_Uninstall(int, bool, unsigned int) = 0;
    virtual int QT_Install(const QString &packagePath) = 0;
    virtual int MP_Preview(const QString &, const QString &) = 0;
    virtual int ME_Preview(const QString &) = 0;
    virtual int GLINT_Preview(const QString &) = 0;
    virtual int Browser_EditBookmark(const QString &) = 0;
    virtual int BlueTooth_ShareFiles(QStringList &) = 0;
    virtual int Browser_AddBookmark() = 0;
    virtual int Browser_AddBookmark(const QString &) = 0;
    virtual void Browser_GetUrl(const QString &bookmarkPath, QString &url) = 0;
    virtual int UpdateBookmarkTitle(const QString &) = 0;
    virtual int Email_ShareFiles(QStringList &) = 0;
    virtual int Theme_ApplytoFile(const QString &, TAMBRO_APPLY_TYPE) = 0;
    virtual int SDMgr_ApplytoFile(const QString &, bool) = 0;
    virtual int QuickSend_GetContact(QString &, QString &) = 0;
    virtual int QuickSend_SendMessage(const QString &, const QString &, const QString &, bool) = 0;
    virtual int PRTCTR_GetPrintMethods(int *) = 0;
    virtual int PRTCTR_IsIndexSupported(int) = 0;
    virtual int PRTCTR_Print(int, bool, QStringList) = 0;
};

// Holds the services library for one request. Each method forwards to the
// service object; without one it returns 0, except J2ME_JAID_ViewJad (1),
// MP_Preview and PRTCTR_Print (-1), and Browser_GetUrl leaves url alone.
class KIVTAMBRO_EXPORT TAMBRO_DYNAMIC_Interface
{
public:
    TAMBRO_DYNAMIC_Interface();
    ~TAMBRO_DYNAMIC_Interface();
    TAMBRO_DYNAMIC_Interface(const TAMBRO_DYNAMIC_Interface &) = delete;
    TAMBRO_DYNAMIC_Interface &operator=(const TAMBRO_DYNAMIC_Interface &) = delete;

    int J2ME_JAID_ViewJad(const QString &jadPath, QString &archiveName, int &number, bool &needsArchive,
                          int installArgument);
    int JAVA_Install(const QString &path, const QString &descriptorPath, int installArgument);
    int JAVA_Uninstall(int, bool, unsigned int);
    int QT_Install(const QString &packagePath);
    int MP_Preview(const QString &, const QString &);
    int ME_Preview(const QString &);
    int GLINT_Preview(const QString &);
    int Browser_EditBookmark(const QString &);
    int BlueTooth_ShareFiles(QStringList &);
    int Email_ShareFiles(QStringList &);
    int Browser_AddBookmark();
    int Browser_AddBookmark(const QString &);
    void Browser_GetUrl(const QString &bookmarkPath, QString &url);
    int UpdateBookmarkTitle(const QString &);
    int Theme_ApplytoFile(const QString &, TAMBRO_APPLY_TYPE);
    int SDMgr_ApplytoFile(const QString &, bool);
    int QuickSend_GetContact(QString &, QString &);
    int QuickSend_SendMessage(const QString &, const QString &, const QString &, bool);
    int PRTCTR_GetPrintMethods(int *);
    int PRTCTR_IsIndexSupported(int);
    int PRTCTR_Print(int, bool, QStringList);

private:
    void *m_library;
    TAMBRO_UTIL_Interface *m_service;
};
