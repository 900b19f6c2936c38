// The simulated MIME registry: its answers from the device file, and how
// often it asks a system database of known content.
#include "devicefile.h"
#include "mime_lookup.h"
#include "mimeanswers/system_mime_database.h"

#include "AM_MimeRegistry.h"
#include "UTIL_MimeType.h"

#include <QTest>

namespace {

// Knows png only, and counts the questions.
class CountingDatabase : public MimeAnswers::SystemMimeDatabase
{
public:
    QString typeOf(const QString &extension) const override
    {
        ++asked[extension];
        return extension.compare(QLatin1String("png"), Qt::CaseInsensitive) ? QString() : QStringLiteral("image/png");
    }
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
    // Asked as written, once, and never about what the device lists; whole
    // names are not remembered, and the answers start over past a limit.
    void databaseAskedOncePerExtensionUpToALimit()
    {
        CountingDatabase database;
        const KivSim::MimeLookup lookup(section({{"mp3", "audio/mpeg"}}), section({{"image/*", "viewer"}}), &database);
        for (int round = 0; round < 2; ++round) {
            QCOMPARE(lookup.handlerForExtension("png"), "viewer");
            QCOMPARE(lookup.typeOf("PNG") + lookup.typeOf("mp3") + lookup.typeOf("zzz"), "image/pngaudio/mpeg");
        }
        QCOMPARE(database.asked, (QHash<QString, int>{{"png", 1}, {"PNG", 1}, {"zzz", 1}}));
        for (qsizetype n = 0; n < MimeAnswers::AnswerTable::maxAnswers; ++n)
            lookup.typeOf(QStringLiteral("Photo %1").arg(n));
        lookup.typeOf("png");
        QCOMPARE(database.asked.value("png"), 1);
        for (qsizetype n = 0; n < MimeAnswers::AnswerTable::maxAnswers; ++n)
            lookup.typeOf(QString::number(n));
        lookup.typeOf("png");
        QCOMPARE(database.asked.value("png"), 2);
    }

    void answers_data()
    {
        QTest::addColumn<int>("criterion"); // -1: the type; else the handler by that criterion
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected"); // null: none

        QTest::newRow("type: exact key") << -1 << "Ärger" << "x/exact";
        QTest::newRow("type: first key ignoring case, folded beyond ASCII") << -1 << "ärger" << "x/first";
        QTest::newRow("type: the system's for unlisted") << -1 << "png" << "image/png";
        QTest::newRow("type: listed ignoring case beats the system") << -1 << "jpg" << "x/listed";
        QTest::newRow("type: nobody knows") << -1 << "qqzzy" << QString();
        QTest::newRow("by extension, case ignored") << 0 << "TXT" << "editor";
        QTest::newRow("by the extension's type") << 0 << "mp3" << "mpeg-player";
        QTest::newRow("by the extension's family") << 0 << "ogg" << "player";
        QTest::newRow("type without handler nor family") << 0 << "jpg" << QString();
        QTest::newRow("by type") << 1 << "audio/mpeg" << "mpeg-player";
        QTest::newRow("by family") << 1 << "audio/x-wav" << "player";
        QTest::newRow("unknown criterion") << 2 << "txt" << QString();
    }

    void answers()
    {
        QFETCH(int, criterion);
        QFETCH(QString, key);
        QFETCH(QString, expected);
        QVERIFY(m_device.write("[registry]\nsystem = 1\n[mime]\nÄrgeR = x/first\nÄrger = x/exact\närgeR = x/later\n"
                               "JPG = x/listed\nmp3 = audio/mpeg\nogg = audio/ogg\n"
                               "[handlers]\ntxt = editor\naudio/mpeg = mpeg-player\naudio/* = player\n"));
        const QString answer = criterion < 0
            ? m_registry.getAssociatedMimeType(key)
            : m_registry.getDefaultHandlerId(MIME_LOOKUP_CRITERIA(criterion), key, QString());
        QCOMPARE(answer, expected);
        QCOMPARE(answer.isNull(), expected.isNull());
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

    // Each answer is remembered until the device file changes, rewritten in
    // place with as many bytes or replaced by a new file.
    void answersFollowTheDevice()
    {
        for (int round = 0; round < 4; ++round) {
            const QByteArray n = QByteArray::number(round);
            const QByteArray content = "[mime]\next = type/n" + n + "\n[handlers]\ntype/n" + n + " = app" + n + "\n";
            QVERIFY(round % 2 ? m_device.replace(content) : m_device.write(content));
            QCOMPARE(m_registry.getAssociatedMimeType("ext"), "type/n" + n);
            QCOMPARE(m_registry.getDefaultHandlerId(MIME_LOOKUP_BY_EXTENSION, "ext", QString()), "app" + n);
        }
    }

private:
    TestDeviceFile m_device;
    AM_MimeRegistry m_registry;
};

QTEST_GUILESS_MAIN(TestRegistry)
#include "tst_registry.moc"
