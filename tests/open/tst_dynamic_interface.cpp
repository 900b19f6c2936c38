// The services library holder: every forwarding method reaches its own slot
// of the contract with its arguments unchanged and returns the object's
// result; without a library, a factory or an object it answers its defaults.
// Each function runs with one variant of a test library on the library path.
#include <TAMBRO_DYNAMIC_Interface.h>

#include "scenarios.h"

#include <QTest>

#include <dlfcn.h>
#include <functional>

namespace {

using Forward = std::function<int(TAMBRO_DYNAMIC_Interface &)>;

struct Operation
{
    const char *name;
    Forward call;
    const char *slotAndArguments; // as the test library notes them
    int fallback; // the answer without a service object
};

// Browser_GetUrl answers nothing: 1 when it changed its output.
const Operation Operations[] = {
    {"J2ME_JAID_ViewJad", [](TAMBRO_DYNAMIC_Interface &s) { QString a; int n = 0; bool need = false;
         const int r = s.J2ME_JAID_ViewJad("d.jad", a, n, need, 9);
         return (a == "Out.jar" && n == 5 && need) || (a.isNull() && n == 0 && !need) ? r : -99; },
     "1:d.jad,9", 1},
    {"JAVA_Install", [](auto &s) { return s.JAVA_Install("a.jar", "d.jad", 9); }, "2:a.jar,d.jad,9", 0},
    {"JAVA_Uninstall", [](auto &s) { return s.JAVA_Uninstall(-3, true, 4000000000u); }, "3:-3,true,4000000000", 0},
    {"QT_Install", [](auto &s) { return s.QT_Install("p.mpkg"); }, "4:p.mpkg", 0},
    {"MP_Preview", [](auto &s) { return s.MP_Preview("x", "y"); }, "5:x,y", -1},
    {"ME_Preview", [](auto &s) { return s.ME_Preview("m"); }, "6:m", 0},
    {"GLINT_Preview", [](auto &s) { return s.GLINT_Preview("g"); }, "7:g", 0},
    {"Browser_EditBookmark", [](auto &s) { return s.Browser_EditBookmark("b"); }, "8:b", 0},
    {"BlueTooth_ShareFiles", [](auto &s) { QStringList f{"1", "2"}; return s.BlueTooth_ShareFiles(f); }, "9:1,2", 0},
    {"Browser_AddBookmark()", [](auto &s) { return s.Browser_AddBookmark(); }, "10:", 0},
    {"Browser_AddBookmark(path)", [](auto &s) { return s.Browser_AddBookmark("k"); }, "11:k", 0},
    {"Browser_GetUrl", [](auto &s) { QString url = "kept"; s.Browser_GetUrl("u.url", url); return url == "kept" ? 0 : 112; },
     "12:u.url", 0},
    {"UpdateBookmarkTitle", [](auto &s) { return s.UpdateBookmarkTitle("t"); }, "13:t", 0},
    {"Email_ShareFiles", [](auto &s) { QStringList f{"e"}; return s.Email_ShareFiles(f); }, "14:e", 0},
    {"Theme_ApplytoFile", [](auto &s) { return s.Theme_ApplytoFile("w", TAMBRO_APPLY_RING_TONE); }, "15:w,2", 0},
    {"SDMgr_ApplytoFile", [](auto &s) { return s.SDMgr_ApplytoFile("c", false); }, "16:c,false", 0},
    {"QuickSend_GetContact", [](auto &s) { QString a, b; const int r = s.QuickSend_GetContact(a, b);
         return a == "Anna" && b == "555" ? r : a.isNull() && b.isNull() ? r : -99; }, "17:", 0},
    {"QuickSend_SendMessage", [](auto &s) { return s.QuickSend_SendMessage("to", "sub", "body", true); },
     "18:to,sub,body,true", 0},
    {"PRTCTR_GetPrintMethods", [](auto &s) { int m = 6; return s.PRTCTR_GetPrintMethods(&m); }, "19:6", 0},
    {"PRTCTR_IsIndexSupported", [](auto &s) { return s.PRTCTR_IsIndexSupported(8); }, "20:8", 0},
    {"PRTCTR_Print", [](auto &s) { return s.PRTCTR_Print(1, true, {"f"}); }, "21:1,true,f", -1},
};

void *loadedLibrary()
{
    return dlopen("libkivtambro_util.so", RTLD_NOW | RTLD_NOLOAD);
}

} // namespace

class TestDynamicInterface : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void forwardsToItsSlot()
    {
        {
            TAMBRO_DYNAMIC_Interface services;
            void *library = loadedLibrary();
            const auto lastCall = reinterpret_cast<const char *(*)()>(dlsym(library, "slotServicesLastCall"));
            QVERIFY(lastCall);
            for (int slot = 1; slot <= int(std::size(Operations)); ++slot) {
                const Operation &operation = Operations[slot - 1];
                QCOMPARE(operation.call(services), 100 + slot);
                QCOMPARE(QByteArray(lastCall()), QByteArray(operation.slotAndArguments));
            }
            dlclose(library);
        }
        QCOMPARE(qgetenv("SLOT_SERVICES_DELETED"), QByteArray("1"));
        QVERIFY(!loadedLibrary()); // unloaded with the holder
    }

    // Each row runs with its own library on the library path.
    void answersDefaultsWithoutAServiceObject_data()
    {
        QTest::addColumn<bool>("staysLoaded"); // while the holder lives
        QTest::newRow("no library") << false;
        QTest::newRow("no factory") << true;
        QTest::newRow("null factory") << true;
    }

    void answersDefaultsWithoutAServiceObject()
    {
        QFETCH(bool, staysLoaded);
        {
            TAMBRO_DYNAMIC_Interface services;
            for (const Operation &operation : Operations)
                QVERIFY2(operation.call(services) == operation.fallback, operation.name);
            void *library = loadedLibrary();
            QCOMPARE(library != nullptr, staysLoaded);
            if (library)
                dlclose(library);
        }
        QVERIFY(!loadedLibrary());
        QVERIFY(qEnvironmentVariableIsEmpty("SLOT_SERVICES_DELETED")); // no object, nothing deleted
    }

    // Without a delete function the library is closed all the same.
    void closesWithoutADeleteFunction()
    {
        {
            TAMBRO_DYNAMIC_Interface services;
            QCOMPARE(services.QT_Install("p"), 104);
        }
        QVERIFY(!loadedLibrary());
    }
};

const QString Variants = QStringLiteral(SLOT_SERVICES_DIR);

KIVTAMBRO_SCENARIO_MAIN(TestDynamicInterface,
                        {{"forwardsToItsSlot", {QString(), {"LD_LIBRARY_PATH=" + Variants + "/complete"}}},
                         {"closesWithoutADeleteFunction", {QString(), {"LD_LIBRARY_PATH=" + Variants + "/nodelete"}}},
                         {"answersDefaultsWithoutAServiceObject:no library", {QString(), {"-LD_LIBRARY_PATH"}}},
                         {"answersDefaultsWithoutAServiceObject:no factory",
                          {QString(), {"LD_LIBRARY_PATH=" + Variants + "/nofactory"}}},
                         {"answersDefaultsWithoutAServiceObject:null factory",
                          {QString(), {"LD_LIBRARY_PATH=" + Variants + "/nullfactory"}}}})
#include "tst_dynamic_interface.moc"
