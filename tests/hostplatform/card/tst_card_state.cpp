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
    return !c.inserted ? "absent" : QByteArray("inserted") + (c.writeProtected ? " write-protected" : "") + (c.locked ? " locked" : "")
            + (c.unformatted ? " unformatted" : "") + (c.invalid ? " invalid" : "") + (c.label.isEmpty() ? "" : " label=" + c.label);
}

static void row(const char *name, Change change, const char *state, const QByteArray &record)
{
    QTest::newRow(name) << change << QByteArray(state) << record;
}

class CardStateTest : public QObject
{
    Q_OBJECT

private slots:
    // Each from a usable file system labelled A, with the driver's record: bytes 0 and 2, then the label field.
    void noMediaThenLockedThenUsage_data()
    {
        QTest::addColumn<Change>("change");
        QTest::addColumn<QByteArray>("state");
        QTest::addColumn<QByteArray>("record");
        row("locked, not invalid", [](BlockReport &b) { b.encrypted = true, b.idUsage = "other"; }, "inserted locked label=A", {"\2\0A", 3});
        row("unlocked", [](BlockReport &b) { b.encrypted = b.hasCleartext = true, b.hasFilesystem = false; }, "inserted label=A", {"\0\4A", 3});
        row("unformatted", [](BlockReport &b) { b.idUsage = {}, b.hasFilesystem = false; }, "inserted unformatted label=A", {"\0\2A", 3});
        row("crypto, no Encrypted", [](BlockReport &b) { b.idUsage = "crypto"; }, "inserted invalid label=A", {"\0\0A", 3});
        row("no media", [](BlockReport &b) { b.mediaAvailable = false, b.readOnly = true; }, "absent", {"\0\0", 2});
        row("size 0", [](BlockReport &b) { b.size = 0, b.idUsage = {}; }, "absent", {"\0\0", 2});
        row("ro, label fills the field", [](BlockReport &b) { b.readOnly = true, b.idLabel = "ABCDEFGHIJKL"; },
            "inserted write-protected label=ABCDEFGHIJKL", {"\1\4ABCDEFGHIJK", 13});
        row("label cut before a character", [](BlockReport &b) { b.idLabel = "ABCDEFGHIJ\u00e9"; }, "inserted label=ABCDEFGHIJ\xc3\xa9", {"\0\4ABCDEFGHIJ", 12});
    }
    void noMediaThenLockedThenUsage()
    {
        QFETCH(Change, change);
        QFETCH(QByteArray, state);
        QFETCH(QByteArray, record);
        BlockReport block{false, QStringLiteral("A"), QStringLiteral("filesystem"), 1 << 20, true, {}};
        change(block);
        const CardState card = cardStateOf(block);
        QCOMPARE(words(card), state);
        QByteArray expected(UTIL_MMCSD_INFO_SIZE, '\0'), info(UTIL_MMCSD_INFO_SIZE, '\xff');
        expected[0] = record[0], expected[2] = record[1], expected.replace(UTIL_MMCSD_LABEL_OFFSET, record.size() - 2, record.mid(2));
        QCOMPARE(fillCardInfo(card, reinterpret_cast<uchar *>(info.data())), card.inserted);
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
