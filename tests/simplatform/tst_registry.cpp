// The simulated MIME registry: its look-up rules, tried against a system
// database of known content that counts how often it is asked, and the
// registry's answers from the device file.
#include "devicefile.h"
#include "mime_lookup.h"
#include "system_mime_database.h"

#include "AM_MimeRegistry.h"
#include "UTIL_MimeType.h"

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
    QStringList extensionsOf(const QString &) const override { return {}; }

    const QHash<QString, QString> types{
        {"jpg", "image/jpeg"}, {"jpeg", "image/jpeg"}, {"png", "image/png"}, {"mp3", "audio/mpeg"}, {"mpga", "audio/mpeg"}};
    mutable QHash<QString, int> asked;
};

KeyFile::Section section(const QList<KeyFile::Entry> &entries)
{
    return {QStringLiteral("mime"), 1, entries};
}

} // namespace

class TestRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typeOf_data()
    {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("expected"); // null: no type

        QTest::newRow("exact key") << "Ärger" << "x/exact";
        QTest::newRow("first key ignoring case, folded beyond ASCII") << "ärger" << "x/first";
        QTest::newRow("Kelvin sign folded to ASCII") << "\u212A7" << "x/kelvin";
        QTest::newRow("surrogate pair folded as one character") << "\U00010428Q" << "x/pair";
        QTest::newRow("database for unlisted") << "png" << "image/png";
        QTest::newRow("listed ignoring case beats the database") << "jpg" << "x/listed";
        QTest::newRow("nobody knows") << "zzz" << QString();
    }

    void typeOf()
    {
        QFETCH(QString, extension);
        QFETCH(QString, expected);
        const KivSim::MimeLookup lookup(
            section({{"ÄrgeR", "x/first"}, {"Ärger", "x/exact"}, {"ärgeR", "x/later"}, {"JPG", "x/listed"},
                     {"k7", "x/kelvin"}, {"\U00010400q", "x/pair"}}),
            {}, &m_database);
        QCOMPARE(lookup.typeOf(extension), expected);
        QCOMPARE(lookup.typeOf(extension).isNull(), expected.isNull());
    }

    void databaseAskedOncePerExtensionUpToALimit()
    {
        m_database.asked.clear();
        const KivSim::MimeLookup lookup(section({{"mp3", "audio/mpeg"}}), section({{"image/*", "viewer"}}),
                                        &m_database);
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(lookup.handlerForExtension("png"), "viewer");
            QCOMPARE(lookup.typeOf("PNG"), "image/png");
            QCOMPARE(lookup.typeOf("mp3"), "audio/mpeg");
            QVERIFY(lookup.typeOf("zzz").isNull());
        }
        // Asked as written, and never about what the device lists.
        QCOMPARE(m_database.asked, (QHash<QString, int>{{"png", 1}, {"PNG", 1}, {"zzz", 1}}));
        for (qsizetype n = 0; n < KivSim::AnswerCache::maxAnswers; ++n)
            lookup.typeOf(QStringLiteral("Photo %1").arg(n)); // whole names are not remembered
        lookup.typeOf("png");
        QCOMPARE(m_database.asked.value("png"), 1);
        for (qsizetype n = 0; n < KivSim::AnswerCache::maxAnswers; ++n)
            lookup.typeOf(QString::number(n));
        lookup.typeOf("png"); // forgotten when the answers started over
        QCOMPARE(m_database.asked.value("png"), 2);
    }

    void handler_data()
    {
        QTest::addColumn<int>("criterion");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected"); // null: no handler

        QTest::newRow("by extension, case ignored") << 0 << "TXT" << "editor";
        QTest::newRow("by the extension's type") << 0 << "mp3" << "mpeg-player";
        QTest::newRow("by the extension's family") << 0 << "ogg" << "player";
        QTest::newRow("type without handler nor family") << 0 << "jpg" << QString();
        QTest::newRow("by type") << 1 << "audio/mpeg" << "mpeg-player";
        QTest::newRow("by family") << 1 << "audio/x-wav" << "player";
        QTest::newRow("unknown criterion") << 2 << "txt" << QString();
    }

    void handler()
    {
        QFETCH(int, criterion);
        QFETCH(QString, key);
        QFETCH(QString, expected);
        QVERIFY(m_device.write("[mime]\nmp3 = audio/mpeg\njpg = image/jpeg\nogg = audio/ogg\n"
                               "[handlers]\ntxt = editor\naudio/mpeg = mpeg-player\naudio/* = player\n"));
        const QString handler = m_registry.getDefaultHandlerId(MIME_LOOKUP_CRITERIA(criterion), key, QString());
        QCOMPARE(handler, expected);
        QCOMPARE(handler.isNull(), expected.isNull());
    }

    // A quoted type keeps its blanks; a picture goes by the last dot.
    void typesFromTheDevice()
    {
        QVERIFY(m_device.write("[mime]\nodd = \"  audio/x-odd \"\nbare =   audio/bare  \njpg = image/jpeg\n"));
        QCOMPARE(m_registry.getAssociatedMimeType("odd") + m_registry.getAssociatedMimeType("bare"),
                 QStringLiteral("  audio/x-odd audio/bare"));
        QVERIFY(UTIL_MimeType::isPicture("/a/photo.JPG") && UTIL_MimeType::isPicture("/a/.jpg"));
        QVERIFY(!UTIL_MimeType::isPicture("/a.jpg/readme"));
    }

    // Each answer is remembered until the device file changes, however fast.
    void answersFollowTheDevice()
    {
        for (int round = 0; round < 40; ++round) {
            const QByteArray n = QByteArray::number(round);
            const QByteArray content = "[mime]\next = type/n" + n + "\n[handlers]\ntype/n" + n + " = app" + n + "\n";
            QVERIFY(round % 2 ? m_device.replace(content) : m_device.write(content));
            QCOMPARE(m_registry.getAssociatedMimeType("ext"), "type/n" + n);
            QCOMPARE(m_registry.getDefaultHandlerId(MIME_LOOKUP_BY_EXTENSION, "ext", QString()), "app" + n);
        }
        QVERIFY(m_device.write("[registry]\nsystem = 1\n")); // the host's database for unlisted types
        QVERIFY(m_registry.getAssociatedMimeType("png").startsWith(QLatin1String("image/")));
    }

private:
    FakeDatabase m_database;
    TestDeviceFile m_device;
    AM_MimeRegistry m_registry;
};

QTEST_GUILESS_MAIN(TestRegistry)
#include "tst_registry.moc"
