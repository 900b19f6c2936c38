// The journal's lines: the shapes that tests and people read, pinned.
#include "AM_MimeRegistry.h"
#include "Dmt.h"
#include "UTIL_MimeType.h"
#include "ZConfig.h"
#include "ZMessageDlg.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

using Call = std::function<void()>;
Q_DECLARE_METATYPE(Call)

class TestJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The journal's name is read once, at the first platform call.
        qputenv("KIVSIM_JOURNAL", QFile::encodeName(m_journal));
    }

    void lines_data()
    {
        QTest::addColumn<Call>("call");
        QTest::addColumn<QByteArray>("expected"); // empty: nothing is journaled

        QTest::newRow("quotes, controls and non-ASCII escaped as JSON") << Call([] {
            ZMessageDlg(QString::fromUtf8("Say \"h\u00E9\" \\ \u2713"), "a\nb\tc\x01", 2, 0).exec();
        }) << QByteArray("{\"call\":\"ZPopup::exec\",\"title\":\"Say \\\"h\xC3\xA9\\\" \\\\ \xE2\x9C\x93\","
                         "\"text\":\"a\\nb\\tc\\u0001\",\"type\":2}");
        QTest::newRow("not journaled: extensions, picture test, configuration, tree nodes") << Call([] {
            AM_MimeRegistry().getAssociatedExtensions("audio/mpeg");
            UTIL_MimeType::isPicture("/a/b.jpg");
            ZConfig("/nonexistent/kiv_tambro.cfg", false).readNumEntry("sortType", "tambro", 0);
            PDmtTree tree;
            DmtTreeFactory::GetSubtree(DmtPrincipal(DMString("localhost")), DMString("./a"), tree);
            PDmtNode node;
            tree->GetNode(DMString("MegaSIMName"), node);
            DmtData data;
            node->GetValue(data);
        }) << QByteArray(R"({"call":"DmtTreeFactory::GetSubtree","path":"./a"})");
    }

    void lines()
    {
        QFETCH(Call, call);
        QFETCH(QByteArray, expected);
        QFile::remove(m_journal);
        call();
        QFile journal(m_journal);
        QVERIFY(journal.open(QIODevice::ReadOnly));
        QCOMPARE(journal.readAll(), expected + '\n');
    }

private:
    QTemporaryDir m_dir;
    const QString m_journal = m_dir.filePath(QStringLiteral("journal.jsonl"));
};

QTEST_MAIN(TestJournal)
#include "tst_journal.moc"
