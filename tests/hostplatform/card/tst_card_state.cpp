// The card's state from what UDisks2 reports of a block, and the driver's record
// made from it; "probe FOLDER PROC SYS" prints the state the query finds instead.
#include "card_state.h"

#include "UTIL_MMCSD.h"

#include <QTest>

using namespace KivHost;
using Change = void (*)(BlockReport &);
Q_DECLARE_METATYPE(Change)

static QByteArray words(const CardState &c)
{
    const QByteArray label = c.label.isEmpty() ? "" : " label=" + c.label;
    return !c.inserted ? "absent"
                       : QByteArray("inserted") + (c.writeProtected ? " write-protected" : "") + (c.locked ? " locked" : "")
            + (c.unformatted ? " unformatted" : "") + (c.invalid ? " invalid" : "") + label;
}

class CardStateTest : public QObject
{
    Q_OBJECT

private slots:
    void noMediaThenLockedThenUsage_data()
    {
        QTest::addColumn<Change>("change"); // of a labelled, usable file system
        QTest::addColumn<QByteArray>("state");
        QTest::newRow("usable") << Change([](BlockReport &) {}) << QByteArray("inserted label=A");
        QTest::newRow("ro device") << Change([](BlockReport &b) { b.readOnly = true; }) << QByteArray("inserted write-protected label=A");
        QTest::newRow("ro mount") << Change([](BlockReport &b) { b.readOnlyMount = true; }) << QByteArray("inserted write-protected label=A");
        QTest::newRow("locked") << Change([](BlockReport &b) { b.encrypted = true; }) << QByteArray("inserted locked label=A");
        QTest::newRow("locked, not invalid") << Change([](BlockReport &b) { b.encrypted = true, b.idUsage = "other"; }) << QByteArray("inserted locked label=A");
        QTest::newRow("unlocked") << Change([](BlockReport &b) { b.encrypted = b.hasCleartext = true, b.hasFilesystem = false; }) << QByteArray("inserted label=A");
        QTest::newRow("unformatted") << Change([](BlockReport &b) { b.idUsage = {}, b.hasFilesystem = false; }) << QByteArray("inserted unformatted label=A");
        QTest::newRow("no Filesystem") << Change([](BlockReport &b) { b.hasFilesystem = false; }) << QByteArray("inserted invalid label=A");
        QTest::newRow("crypto, no Encrypted") << Change([](BlockReport &b) { b.idUsage = "crypto"; }) << QByteArray("inserted invalid label=A");
        QTest::newRow("no media") << Change([](BlockReport &b) { b.mediaAvailable = false, b.readOnly = true; }) << QByteArray("absent");
        QTest::newRow("size 0") << Change([](BlockReport &b) { b.size = 0, b.idUsage = {}; }) << QByteArray("absent");
    }
    void noMediaThenLockedThenUsage()
    {
        QFETCH(Change, change);
        QFETCH(QByteArray, state);
        BlockReport block{false, QStringLiteral("A"), QStringLiteral("filesystem"), 1 << 20, true, {}};
        change(block);
        QCOMPARE(words(cardStateOf(block)), state);
    }

    void recordHasFlagsAndACutLabel_data()
    {
        QTest::addColumn<CardState>("state");
        QTest::addColumn<QByteArray>("record"); // bytes 0 and 2, then the label field
        QTest::newRow("ready, label fills the field") << CardState{true, "ABCDEFGHIJKL", true} << QByteArray("\1\4ABCDEFGHIJK", 13);
        QTest::newRow("locked first, whole characters") << CardState{true, "ABCDEFGHIJ\xc3\xa9", false, true, true, true}
                                                        << QByteArray("\2\0ABCDEFGHIJ", 12);
        QTest::newRow("unformatted") << CardState{true, "", false, false, true} << QByteArray("\0\2", 2);
        QTest::newRow("invalid") << CardState{true, "", false, false, false, true} << QByteArray("\0\0", 2);
        QTest::newRow("absent") << CardState{false, "A", true, true} << QByteArray("\0\0", 2);
    }
    void recordHasFlagsAndACutLabel()
    {
        QFETCH(CardState, state);
        QFETCH(QByteArray, record);
        QByteArray expected(UTIL_MMCSD_INFO_SIZE, '\0'), info(UTIL_MMCSD_INFO_SIZE, '\xff');
        expected[0] = record[0], expected[2] = record[1];
        expected.replace(UTIL_MMCSD_LABEL_OFFSET, record.size() - 2, record.mid(2));
        QCOMPARE(fillCardInfo(state, reinterpret_cast<uchar *>(info.data())), state.inserted);
        QCOMPARE(info, expected);
    }
};

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc == 5 && qstrcmp(argv[1], "probe") == 0)
        return std::puts(words(queryCardState({argv[2], argv[3], argv[4]})).constData()) < 0;
    CardStateTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_card_state.moc"
