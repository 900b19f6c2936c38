// A services library for the tests, built as a phone's would be, on its own
// declaration of the interface: each operation notes its slot and arguments and
// answers 100 + its slot. Variants lack the delete function or the factory, or
// have a null factory.
#include <QStringList>

#include <cstdlib>

#define EXPORT extern "C" __attribute__((visibility("default")))

// The contract: the destructor, then the operations in this order.
class TAMBRO_UTIL_Interface
{
public:
    virtual ~TAMBRO_UTIL_Interface() {}
    virtual int J2ME_JAID_ViewJad(const QString &, QString &, int &, bool &, int) = 0;
    virtual int JAVA_Install(const QString &, const QString &, int) = 0;
    virtual int JAVA_Uninstall(int, bool, unsigned int) = 0;
    virtual int QT_Install(const QString &) = 0;
    virtual int MP_Preview(const QString &, const QString &) = 0;
    virtual int ME_Preview(const QString &) = 0;
    virtual int GLINT_Preview(const QString &) = 0;
    virtual int Browser_EditBookmark(const QString &) = 0;
    virtual int BlueTooth_ShareFiles(QStringList &) = 0;
    virtual int Browser_AddBookmark() = 0;
    virtual int Browser_AddBookmark(const QString &) = 0;
    virtual void Browser_GetUrl(const QString &, QString &) = 0;
    virtual int UpdateBookmarkTitle(const QString &) = 0;
    virtual int Email_ShareFiles(QStringList &) = 0;
    virtual int Theme_ApplytoFile(const QString &, int) = 0;
    virtual int SDMgr_ApplytoFile(const QString &, bool) = 0;
    virtual int QuickSend_GetContact(QString &, QString &) = 0;
    virtual int QuickSend_SendMessage(const QString &, const QString &, const QString &, bool) = 0;
    virtual int PRTCTR_GetPrintMethods(int *) = 0;
    virtual int PRTCTR_IsIndexSupported(int) = 0;
    virtual int PRTCTR_Print(int, bool, QStringList) = 0;
};

namespace {

QByteArray lastCall;

int note(int slot, const QStringList &arguments)
{
    lastCall = QByteArray::number(slot) + ':' + arguments.join(u',').toUtf8();
    return 100 + slot;
}

QString text(bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }

class SlotServices : public TAMBRO_UTIL_Interface
{
public:
    int J2ME_JAID_ViewJad(const QString &path, QString &archive, int &number, bool &needs, int argument) override
    {
        archive = QStringLiteral("Out.jar"), number = 5, needs = true;
        return note(1, {path, QString::number(argument)});
    }
    int JAVA_Install(const QString &a, const QString &b, int c) override { return note(2, {a, b, QString::number(c)}); }
    int JAVA_Uninstall(int a, bool b, unsigned int c) override { return note(3, {QString::number(a), text(b), QString::number(c)}); }
    int QT_Install(const QString &a) override { return note(4, {a}); }
    int MP_Preview(const QString &a, const QString &b) override { return note(5, {a, b}); }
    int ME_Preview(const QString &a) override { return note(6, {a}); }
    int GLINT_Preview(const QString &a) override { return note(7, {a}); }
    int Browser_EditBookmark(const QString &a) override { return note(8, {a}); }
    int BlueTooth_ShareFiles(QStringList &files) override { return note(9, files); }
    int Browser_AddBookmark() override { return note(10, {}); }
    int Browser_AddBookmark(const QString &a) override { return note(11, {a}); }
    void Browser_GetUrl(const QString &a, QString &url) override { url = QStringLiteral("http://out"), note(12, {a}); }
    int UpdateBookmarkTitle(const QString &a) override { return note(13, {a}); }
    int Email_ShareFiles(QStringList &files) override { return note(14, files); }
    int Theme_ApplytoFile(const QString &a, int b) override { return note(15, {a, QString::number(b)}); }
    int SDMgr_ApplytoFile(const QString &a, bool b) override { return note(16, {a, text(b)}); }
    int QuickSend_GetContact(QString &a, QString &b) override { return a = "Anna", b = "555", note(17, {}); }
    int QuickSend_SendMessage(const QString &a, const QString &b, const QString &c, bool d) override { return note(18, {a, b, c, text(d)}); }
    int PRTCTR_GetPrintMethods(int *methods) override { return note(19, {QString::number(*methods)}); }
    int PRTCTR_IsIndexSupported(int a) override { return note(20, {QString::number(a)}); }
    int PRTCTR_Print(int a, bool b, QStringList files) override { return note(21, QStringList{QString::number(a), text(b)} + files); }
};

} // namespace

EXPORT const char *slotServicesLastCall()
{
    return lastCall.constData();
}

#ifndef WITHOUT_FACTORY
EXPORT TAMBRO_UTIL_Interface *TAMBRO_EXPORT_CreateInterface()
{
#ifdef NULL_FACTORY
    return nullptr;
#else
    return new SlotServices;
#endif
}
#endif

#ifndef WITHOUT_DELETE
EXPORT int TAMBRO_EXPORT_DeleteInterface(TAMBRO_UTIL_Interface **service)
{
    setenv("SLOT_SERVICES_DELETED", "1", 1); // outlives the library
    delete *service;
    *service = nullptr;
    return 0;
}
#endif
