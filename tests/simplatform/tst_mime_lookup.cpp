// The registry's look-up rules against a system database of known content,
// which also counts how often it is asked.
#include "mime_lookup.h"
#include "system_mime_database.h"

#include <QHash>
#include <QTest>

namespace {

class FakeDatabase : public KivSim::SystemMimeDatabase
{
public:
    QString typeOf(const QString &extension) const override
    {
        ++asked[extension];
        return types.value(extension.toLower());
    }
    QStringList extensionsOf(const QString &mimeType) const override
    {
        return extensions.value(mimeType.toLower());
    }

    const QHash<QString, QString> types{{"jpg", "image/jpeg"}, {"jpeg", "image/jpeg"},
                                        {"jpe", "image/jpeg"}, {"png", "image/png"},
                                        {"mp3", "audio/mpeg"}, {"mpga", "audio/mpeg"}};
    // audio/mp3 is an alias: the database answers it with audio/mpeg's extensions.
    const QHash<QString, QStringList> extensions{{"image/jpeg", {"jpg", "jpeg", "jpe"}},
                                                 {"image/png", {"png"}},
                                                 {"audio/mpeg", {"mp3", "mpga"}},
                                                 {"audio/mp3", {"mp3", "mpga"}}};
    mutable QHash<QString, int> asked;
};

KeyFile::Section section(const QList<KeyFile::Entry> &entries)
{
    return {QStringLiteral("mime"), 1, entries};
}

} // namespace

class TestMimeLookup : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_database.asked.clear(); }
    void typeOf_data();
    void typeOf();
    void systemAskedOncePerExtension();
    void manyExtensionsStartTheAnswersOver();
    void extensionsOf_data();
    void extensionsOf();

private:
    FakeDatabase m_database;
};

void TestMimeLookup::typeOf_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("expected"); // null: no type

    QTest::newRow("exact key") << "Ärger" << "x/exact";
    QTest::newRow("first key ignoring case") << "ÄRGER" << "x/first";
    QTest::newRow("folded beyond ASCII") << "ärger" << "x/first";
    QTest::newRow("database for unlisted") << "png" << "image/png";
    QTest::newRow("listed beats the database") << "jpg" << "x/listed";
    QTest::newRow("nobody knows") << "zzz" << QString();
}

void TestMimeLookup::typeOf()
{
    QFETCH(QString, extension);
    QFETCH(QString, expected);

    const KivSim::MimeLookup lookup(
        section({{"ÄrgeR", "x/first"}, {"Ärger", "x/exact"}, {"ärgeR", "x/later"}, {"JPG", "x/listed"}}),
        {}, &m_database);
    QCOMPARE(lookup.typeOf(extension), expected);
    QCOMPARE(lookup.typeOf(extension).isNull(), expected.isNull());
}

void TestMimeLookup::systemAskedOncePerExtension()
{
    const KivSim::MimeLookup lookup(section({{"mp3", "audio/mpeg"}}),
                                    section({{"image/*", "viewer"}}), &m_database);
    for (int round = 0; round < 3; ++round) {
        QCOMPARE(lookup.typeOf("png"), "image/png");
        QCOMPARE(lookup.handlerForExtension("png"), "viewer");
        QCOMPARE(lookup.typeOf("PNG"), "image/png");
        QCOMPARE(lookup.typeOf("mp3"), "audio/mpeg");
        QVERIFY(lookup.typeOf("zzz").isNull());
    }
    // Asked as written, and never about what the device lists.
    const QHash<QString, int> expected{{"png", 1}, {"PNG", 1}, {"zzz", 1}};
    QCOMPARE(m_database.asked, expected);
    QVERIFY(KivSim::MimeLookup().typeOf("png").isNull()); // no database, no answer
}

void TestMimeLookup::manyExtensionsStartTheAnswersOver()
{
    const KivSim::MimeLookup lookup({}, {}, &m_database);
    for (qsizetype n = 0; n <= KivSim::AnswerCache::maxAnswers; ++n)
        lookup.typeOf(QString::number(n));
    QCOMPARE(lookup.typeOf("png"), "image/png");
    QCOMPARE(lookup.typeOf("png"), "image/png");
    QCOMPARE(m_database.asked.value("png"), 1);
    QCOMPARE(m_database.asked.value("0"), 1);
    lookup.typeOf("0"); // forgotten when the answers started over
    QCOMPARE(m_database.asked.value("0"), 2);
}

void TestMimeLookup::extensionsOf_data()
{
    QTest::addColumn<bool>("system");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("device's keys, then the database's") << true << "image/jpeg" << QStringList{"JPG", "jpeg"};
    QTest::newRow("type ignoring case") << true << "IMAGE/JPEG" << QStringList{"JPG", "jpeg"};
    QTest::newRow("no repeats") << true << "audio/mpeg" << QStringList{"mp3", "mpga"};
    QTest::newRow("database only") << true << "image/png" << QStringList{"png"};
    // Asking for mp3 gives audio/mpeg, not the alias.
    QTest::newRow("alias") << true << "audio/mp3" << QStringList();
    QTest::newRow("without the database") << false << "image/jpeg" << QStringList{"JPG"};
    QTest::newRow("unknown type") << true << "x/none" << QStringList();
}

void TestMimeLookup::extensionsOf()
{
    QFETCH(bool, system);
    QFETCH(QString, type);
    QFETCH(QStringList, expected);

    // jpe is the device's own type, so it is no image/jpeg extension here.
    const KivSim::MimeLookup lookup(
        section({{"JPG", "image/jpeg"}, {"jpe", "image/x-phone"}, {"mp3", "audio/mpeg"}}), {},
        system ? &m_database : nullptr);
    QCOMPARE(lookup.extensionsOf(type), expected);
}

QTEST_GUILESS_MAIN(TestMimeLookup)
#include "tst_mime_lookup.moc"
