// The simulated phone's services library, libkivtambro_util.so: every
// operation is journaled with its arguments and answers as the device file's
// [services] section says; bookmarks and Java descriptors are read for real.
#include "documents.h"
#include "services_entry.h"

#include "device.h"
#include "journal.h"

#include <TAMBRO_DYNAMIC_Interface.h>

#include <QJsonArray>

namespace {

using KivSim::Journal::Line;

QJsonArray jsonList(const QStringList &files)
{
    return QJsonArray::fromStringList(files);
}

// The device's answer for an operation, else the one given.
int answer(const char *operation, int otherwise)
{
    return KivSim::device()->services.value(QLatin1String(operation), otherwise);
}

// The operation's journal line; written by write() when the journal is on.
Line call(const char *operation)
{
    return Line(("TAMBRO_UTIL_Interface::" + QByteArray(operation)).constData());
}

class SimulatedServices : public TAMBRO_UTIL_Interface
{
public:
    int J2ME_JAID_ViewJad(const QString &jadPath, QString &archiveName, int &number, bool &needsArchive,
                          int installArgument) override
    {
        call("J2ME_JAID_ViewJad").arg("jadPath", jadPath).arg("installArgument", installArgument).write();
        const std::optional<KivPlatform::JavaDescriptor> descriptor = KivPlatform::javaDescriptor(jadPath);
        if (descriptor) {
            archiveName = descriptor->archiveName;
            number = descriptor->applications;
            needsArchive = !archiveName.isEmpty();
        }
        return answer("J2ME_JAID_ViewJad", descriptor ? 0 : 1);
    }
    int JAVA_Install(const QString &path, const QString &descriptorPath, int installArgument) override
    {
        call("JAVA_Install").arg("path", path).arg("descriptorPath", descriptorPath).arg("installArgument", installArgument).write();
        return answer("JAVA_Install", 1);
    }
    int JAVA_Uninstall(int a, bool b, unsigned int c) override
    {
        call("JAVA_Uninstall").arg("a", a).arg("b", b).arg("c", qint64(c)).write();
        return answer("JAVA_Uninstall", 0);
    }
    int QT_Install(const QString &packagePath) override
    {
        call("QT_Install").arg("packagePath", packagePath).write();
        return answer("QT_Install", 1);
    }
    int MP_Preview(const QString &a, const QString &b) override
    {
        call("MP_Preview").arg("a", a).arg("b", b).write();
        return answer("MP_Preview", 0);
    }
    int ME_Preview(const QString &path) override { return onFile("ME_Preview", path); }
    int GLINT_Preview(const QString &path) override { return onFile("GLINT_Preview", path); }
    int Browser_EditBookmark(const QString &path) override { return onFile("Browser_EditBookmark", path); }
    int BlueTooth_ShareFiles(QStringList &files) override
    {
        call("BlueTooth_ShareFiles").arg("files", jsonList(files)).write();
        return answer("BlueTooth_ShareFiles", 0);
    }
    int Browser_AddBookmark() override
    {
        call("Browser_AddBookmark").write();
        return answer("Browser_AddBookmark", 0);
    }
    int Browser_AddBookmark(const QString &path) override { return onFile("Browser_AddBookmark", path); }
    void Browser_GetUrl(const QString &bookmarkPath, QString &url) override
    {
        call("Browser_GetUrl").arg("bookmarkPath", bookmarkPath).write();
        if (const std::optional<QString> found = KivPlatform::bookmarkUrl(bookmarkPath))
            url = *found;
    }
    int UpdateBookmarkTitle(const QString &path) override { return onFile("UpdateBookmarkTitle", path); }
    int Email_ShareFiles(QStringList &files) override
    {
        call("Email_ShareFiles").arg("files", jsonList(files)).write();
        return answer("Email_ShareFiles", 0);
    }
    int Theme_ApplytoFile(const QString &path, TAMBRO_APPLY_TYPE type) override
    {
        call("Theme_ApplytoFile").arg("path", path).arg("type", int(type)).write();
        return answer("Theme_ApplytoFile", 0);
    }
    int SDMgr_ApplytoFile(const QString &path, bool flag) override
    {
        call("SDMgr_ApplytoFile").arg("path", path).arg("flag", flag).write();
        return answer("SDMgr_ApplytoFile", 0);
    }
    int QuickSend_GetContact(QString &, QString &) override
    {
        call("QuickSend_GetContact").write();
        return answer("QuickSend_GetContact", 0);
    }
    int QuickSend_SendMessage(const QString &a, const QString &b, const QString &c, bool d) override
    {
        call("QuickSend_SendMessage").arg("a", a).arg("b", b).arg("c", c).arg("d", d).write();
        return answer("QuickSend_SendMessage", 0);
    }
    int PRTCTR_GetPrintMethods(int *) override
    {
        call("PRTCTR_GetPrintMethods").write();
        return answer("PRTCTR_GetPrintMethods", 0);
    }
    int PRTCTR_IsIndexSupported(int index) override
    {
        call("PRTCTR_IsIndexSupported").arg("index", index).write();
        return answer("PRTCTR_IsIndexSupported", 0);
    }
    int PRTCTR_Print(int a, bool b, QStringList files) override
    {
        call("PRTCTR_Print").arg("a", a).arg("b", b).arg("files", jsonList(files)).write();
        return answer("PRTCTR_Print", 0);
    }

private:
    static int onFile(const char *operation, const QString &path)
    {
        call(operation).arg("path", path).write();
        return answer(operation, 0);
    }
};

} // namespace

TAMBRO_UTIL_Interface *KivPlatform::makeServices()
{
    return new SimulatedServices;
}
