// The services library holder: each method reaches its own slot with its
// arguments and returns the object's result, or answers its default.
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
    // Each row runs with its own library on the library path.
    void holder_data()
    {
        QTest::addColumn<bool>("forwards"); // else every method answers its default
        QTest::addColumn<bool>("loaded"); // while the holder lives
        QTest::addColumn<bool>("deleted"); // the object, through the library's delete function

        QTest::newRow("complete") << true << true << true;
        QTest::newRow("no delete function: closed all the same") << true << true << false;
        QTest::newRow("no factory") << false << true << false;
        QTest::newRow("null factory") << false << true << false;
        QTest::newRow("no library") << false << false << false;
    }

    void holder()
    {
        QFETCH(bool, forwards);
        QFETCH(bool, loaded);
        QFETCH(bool, deleted);
        {
            TAMBRO_DYNAMIC_Interface services;
            void *library = loadedLibrary();
            QCOMPARE(library != nullptr, loaded);
            const auto lastCall = reinterpret_cast<const char *(*)()>(library ? dlsym(library, "slotServicesLastCall") : nullptr);
            for (int slot = 1; slot <= int(std::size(Operations)); ++slot) {
                const Operation &operation = Operations[slot - 1];
                QCOMPARE(operation.call(services), forwards ? 100 + slot : operation.fallback);
                if (forwards)
                    QCOMPARE(QByteArray(lastCall()), QByteArray(operation.slotAndArguments));
            }
            if (library)
                dlclose(library);
        }
        QCOMPARE(qgetenv("SLOT_SERVICES_DELETED") == "1", deleted);
        QVERIFY(!loadedLibrary()); // unloaded with the holder
    }
};

const QString Variants = QStringLiteral(SLOT_SERVICES_DIR);

KIVTAMBRO_SCENARIO_MAIN(TestDynamicInterface,
                        {{"holder:complete", {QString(), {"LD_LIBRARY_PATH=" + Variants + "/complete"}}},
                         // Nothing can free the object then: not a leak of the library's.
                         {"holder:no delete function: closed all the same",
                          {QString(), {"LD_LIBRARY_PATH=" + Variants + "/nodelete", "LSAN_OPTIONS=detect_leaks=0"}}},
                         {"holder:no factory", {QString(), {"LD_LIBRARY_PATH=" + Variants + "/nofactory"}}},
                         {"holder:null factory", {QString(), {"LD_LIBRARY_PATH=" + Variants + "/nullfactory"}}},
                         {"holder:no library", {QString(), {"-LD_LIBRARY_PATH"}}}})
#include "tst_dynamic_interface.moc"
