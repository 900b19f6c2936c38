// This machine's services library, libkivtambro_util.so: a bookmark's URL is
// read from its file, for the machine's handler of its scheme. The machine
// has no service for anything else the phone's services library does, so
// every other operation is refused with a warning and answers what the
// library answers without a services library, which its callers take for
// "nothing done": 1 from J2ME_JAID_ViewJad, -1 from MP_Preview and
// PRTCTR_Print, 0 from the others, out-arguments left as they were.
#include "documents.h"
#include "services_entry.h"
#include "warning.h"

#include <TAMBRO_DYNAMIC_Interface.h>

namespace {

int refuse(const char *service, const char *operation, int answer)
{
    platformWarning(QStringLiteral("this machine has no service for %1 (%2)")
                        .arg(QLatin1String(service), QLatin1String(operation)));
    return answer;
}

const char Java[] = "Java installation";
const char Preview[] = "previews";
const char Bookmarks[] = "the browser's bookmarks";
const char QuickSend[] = "QuickSend messages";
const char Printing[] = "printing";

class HostServices : public TAMBRO_UTIL_Interface
{
public:
    int J2ME_JAID_ViewJad(const QString &, QString &, int &, bool &, int) override
    {
        return refuse(Java, "J2ME_JAID_ViewJad", 1);
    }
    int JAVA_Install(const QString &, const QString &, int) override { return refuse(Java, "JAVA_Install", 0); }
    int JAVA_Uninstall(int, bool, unsigned int) override { return refuse(Java, "JAVA_Uninstall", 0); }
    int QT_Install(const QString &) override { return refuse("native package installation", "QT_Install", 0); }
    int MP_Preview(const QString &, const QString &) override { return refuse(Preview, "MP_Preview", -1); }
    int ME_Preview(const QString &) override { return refuse(Preview, "ME_Preview", 0); }
    int GLINT_Preview(const QString &) override { return refuse(Preview, "GLINT_Preview", 0); }
    int Browser_EditBookmark(const QString &) override { return refuse(Bookmarks, "Browser_EditBookmark", 0); }
    int BlueTooth_ShareFiles(QStringList &) override
    {
        return refuse("sharing by Bluetooth", "BlueTooth_ShareFiles", 0);
    }
    int Browser_AddBookmark() override { return refuse(Bookmarks, "Browser_AddBookmark", 0); }
    int Browser_AddBookmark(const QString &) override { return refuse(Bookmarks, "Browser_AddBookmark", 0); }
    // A file without a URL leaves it as it was.
    void Browser_GetUrl(const QString &bookmarkPath, QString &url) override
    {
        if (const std::optional<QString> found = KivPlatform::bookmarkUrl(bookmarkPath))
            url = *found;
    }
    int UpdateBookmarkTitle(const QString &) override { return refuse(Bookmarks, "UpdateBookmarkTitle", 0); }
    int Email_ShareFiles(QStringList &) override { return refuse("sharing by e-mail", "Email_ShareFiles", 0); }
    int Theme_ApplytoFile(const QString &, TAMBRO_APPLY_TYPE) override
    {
        return refuse("themes", "Theme_ApplytoFile", 0);
    }
    int SDMgr_ApplytoFile(const QString &, bool) override { return refuse("applying files", "SDMgr_ApplytoFile", 0); }
    int QuickSend_GetContact(QString &, QString &) override { return refuse(QuickSend, "QuickSend_GetContact", 0); }
    int QuickSend_SendMessage(const QString &, const QString &, const QString &, bool) override
    {
        return refuse(QuickSend, "QuickSend_SendMessage", 0);
    }
    int PRTCTR_GetPrintMethods(int *) override { return refuse(Printing, "PRTCTR_GetPrintMethods", 0); }
    int PRTCTR_IsIndexSupported(int) override { return refuse(Printing, "PRTCTR_IsIndexSupported", 0); }
    int PRTCTR_Print(int, bool, QStringList) override { return refuse(Printing, "PRTCTR_Print", -1); }
};

} // namespace

TAMBRO_UTIL_Interface *KivPlatform::makeServices()
{
    return new HostServices;
}
