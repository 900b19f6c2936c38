#include "AM_ActionData.h"
#include "AM_LauncherClient.h"
#include "AM_MimeRegistry.h"
#include "Dmt.h"
#include "RES_ICON_Reader.h"
#include "SETUP_Utility.h"
#include "UTIL_MMCSD.h"
#include "UTIL_MimeType.h"
#include "ZConfig.h"
#include "ZMessageDlg.h"
#include "sortmethods.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "sorter_units.h"

#include <functional>

using Call = std::function<void()>;
Q_DECLARE_METATYPE(Call)

static void showNotice(const QString &title, const QString &text)
{
    ZMessageDlg dialog(title, text, 2, 0);
    RES_ICON_Reader reader;
    dialog.setTitleIcon(reader.getIcon("info_pop.gif", true));
    dialog.exec(); // returns at once: tests run on the offscreen platform
}

class TestJournal : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void lines_data();
    void lines();

private:
    QTemporaryDir m_dir;
    QString m_journal;
};

void TestJournal::initTestCase()
{
    // The journal's name is read once, at the first platform call.
    m_journal = m_dir.filePath(QStringLiteral("journal.jsonl"));
    qputenv("KIVSIM_JOURNAL", QFile::encodeName(m_journal));
}

void TestJournal::init()
{
    QFile::remove(m_journal);
}

void TestJournal::lines_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<QByteArray>("expected"); // empty: nothing is journaled

    QTest::newRow("card status") << Call([] { UTIL_GetMMCSDStatus(); })
                                 << QByteArray(R"({"call":"UTIL_GetMMCSDStatus"})");
    QTest::newRow("card information") << Call([] {
        unsigned char block[UTIL_MMCSD_INFO_SIZE];
        UTIL_GetMMCSDInfo(block, "/dev/mmca");
    }) << QByteArray(R"({"call":"UTIL_GetMMCSDInfo","device":"/dev/mmca"})");
    QTest::newRow("tree initialize") << Call([] { DmtTreeFactory::Initialize(); })
                                     << QByteArray(R"({"call":"DmtTreeFactory::Initialize"})");
    QTest::newRow("subtree") << Call([] {
        PDmtTree tree;
        DmtTreeFactory::GetSubtree(DmtPrincipal(DMString("localhost")),
                                   DMString("./DevDetail/Ext/Conf/MegaSIM"), tree);
    }) << QByteArray(R"({"call":"DmtTreeFactory::GetSubtree","path":"./DevDetail/Ext/Conf/MegaSIM"})");
    QTest::newRow("tree uninitialize") << Call([] { DmtTreeFactory::Uninitialize(); })
                                       << QByteArray(R"({"call":"DmtTreeFactory::Uninitialize"})");
    QTest::newRow("registry init") << Call([] { AM_MimeRegistry().init(MIME_FILE_SYSTEM); })
                                   << QByteArray(R"({"call":"AM_MimeRegistry::init","type":0})");
    QTest::newRow("mime type, case as given")
        << Call([] { AM_MimeRegistry().getAssociatedMimeType("MP3"); })
        << QByteArray(R"({"call":"AM_MimeRegistry::getAssociatedMimeType","extension":"MP3"})");
    QTest::newRow("handler, without its inner look-ups")
        << Call([] { AM_MimeRegistry().getDefaultHandlerId(MIME_LOOKUP_BY_EXTENSION, "txt", QString()); })
        << QByteArray(R"({"call":"AM_MimeRegistry::getDefaultHandlerId","criterion":0,"key":"txt"})");
    QTest::newRow("icon") << Call([] { RES_ICON_Reader().getIcon("fm_pic_thb.gif", true); })
                          << QByteArray(R"({"call":"RES_ICON_Reader::getIcon","name":"fm_pic_thb.gif"})");
    QTest::newRow("flex bit") << Call([] {
        bool value = false;
        SETUP_Utility().getFlexBit(149, value);
    }) << QByteArray(R"({"call":"SETUP_Utility::getFlexBit","bit":149})");
    QTest::newRow("sorter units with terminator") << Call([] {
        sortmethods_str_cmp(sorterUnits("a").data(), sorterUnits("b").data());
    }) << QByteArray(R"({"call":"sortmethods_str_cmp","first":[24832,0],"second":[25088,0]})");
    QTest::newRow("sorter, empty names") << Call([] {
        sortmethods_str_cmp(sorterUnits("").data(), sorterUnits("").data());
    }) << QByteArray(R"({"call":"sortmethods_str_cmp","first":[0],"second":[0]})");
    QTest::newRow("image viewer request") << Call([] {
        AM_ActionData action;
        action.setAction("ViewImagebyName");
        action.setValue("Mode", "PreviewImageOptions");
        action.setValue("FileName", "/x.jpg");
        action.invoke(false);
    }) << QByteArray(R"({"call":"AM_ActionData::invoke","action":"ViewImagebyName","values":[["Mode","PreviewImageOptions"],["FileName","/x.jpg"]]})");
    QTest::newRow("integer value stays a number") << Call([] {
        AM_ActionData action;
        action.setAction("ViewImagebyName");
        action.setValue("FileName", "/x.jpg");
        action.setValue("SortType", 2);
        action.setValue("TargetView", "normal");
        action.invoke(false);
    }) << QByteArray(R"({"call":"AM_ActionData::invoke","action":"ViewImagebyName","values":[["FileName","/x.jpg"],["SortType",2],["TargetView","normal"]]})");
    QTest::newRow("open document") << Call([] {
        AM_LauncherClient::openDocument("/x/readme.txt", QString(), true, QString(), QByteArray());
    }) << QByteArray(R"({"call":"AM_LauncherClient::openDocument","path":"/x/readme.txt"})");
    QTest::newRow("null URL") << Call([] { AM_LauncherClient::loadURL(QString()); })
                              << QByteArray(R"({"call":"AM_LauncherClient::loadURL","url":""})");
    QTest::newRow("notice") << Call([] { showNotice("Cannot Access", "Open Contacts."); })
                            << QByteArray(R"({"call":"RES_ICON_Reader::getIcon","name":"info_pop.gif"})"
                                          "\n"
                                          R"({"call":"ZPopup::exec","title":"Cannot Access","text":"Open Contacts.","type":2})");
    QTest::newRow("quotes, controls and non-ASCII escaped as JSON") << Call([] {
        ZMessageDlg(QString::fromUtf8("Say \"h\u00E9\" \\ \u2713"), "a\nb\tc\x01", 2, 0).exec();
    }) << QByteArray("{\"call\":\"ZPopup::exec\",\"title\":\"Say \\\"h\xC3\xA9\\\" \\\\ \xE2\x9C\x93\","
                     "\"text\":\"a\\nb\\tc\\u0001\",\"type\":2}");
    QTest::newRow("not journaled: extensions, picture test, configuration") << Call([] {
        AM_MimeRegistry().getAssociatedExtensions("audio/mpeg");
        UTIL_MimeType::isPicture("/a/b.jpg");
        ZConfig("/nonexistent/kiv_tambro.cfg", false).readNumEntry("sortType", "tambro", 0);
    }) << QByteArray();
    QTest::newRow("not journaled: node and value") << Call([] {
        PDmtNode node;
        DmtTree("./DevDetail/Ext/Conf/MegaSIM").GetNode(DMString("MegaSIMName"), node);
        DmtData data;
        node->GetValue(data);
    }) << QByteArray();
}

void TestJournal::lines()
{
    QFETCH(Call, call);
    QFETCH(QByteArray, expected);

    call();
    QFile journal(m_journal);
    if (expected.isEmpty()) {
        QVERIFY(!journal.exists() || journal.size() == 0);
        return;
    }
    QVERIFY(journal.open(QIODevice::ReadOnly));
    QCOMPARE(journal.readAll(), expected + '\n');
}

QTEST_MAIN(TestJournal)
#include "tst_journal.moc"
