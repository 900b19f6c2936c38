#include "devicefile.h"

#include "AM_MimeRegistry.h"
#include "UTIL_MimeType.h"

#include <QTest>

static const QByteArray registry = R"([mime]
mp3 = audio/mpeg
JPG = image/jpeg
jpg = image/x-lower
Txt = text/plain
ogg = audio/ogg
amr =   audio/amr
blank =
[handlers]
txt = editor
audio/mpeg = mpeg-player
audio/* = player
image/jpeg = viewer
)";

class TestRegistry : public QObject
{
    Q_OBJECT

private slots:
    void mimeType_data();
    void mimeType();
    void systemDatabaseAlone_data();
    void systemDatabaseAlone();
    void handler_data();
    void handler();
    void extensions_data();
    void extensions();
    void isPicture_data();
    void isPicture();
    void answersFollowTheDevice();
    void changeRightAfterACallIsSeen();

private:
    void useRegistry(bool systemDatabase)
    {
        QVERIFY(m_device.write(registry + "[registry]\nsystem = " + (systemDatabase ? "1" : "0")));
    }
    QString handlerOf(const QString &extension)
    {
        return m_registry.getDefaultHandlerId(MIME_LOOKUP_BY_EXTENSION, extension, QString());
    }

    TestDeviceFile m_device;
    AM_MimeRegistry m_registry;
};

void TestRegistry::mimeType_data()
{
    QTest::addColumn<bool>("system");
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("expected");

    QTest::newRow("exact key wins over a case variant") << false << "jpg" << "image/x-lower";
    QTest::newRow("exact upper-case key") << false << "JPG" << "image/jpeg";
    QTest::newRow("case ignored when no exact key") << false << "MP3" << "audio/mpeg";
    QTest::newRow("value trimmed") << false << "amr" << "audio/amr";
    QTest::newRow("unlisted") << false << "png" << "";
    QTest::newRow("empty value lists nothing") << false << "blank" << "";
    QTest::newRow("system database for unlisted") << true << "png" << "image/png";
    QTest::newRow("system database ignores case") << true << "PNG" << "image/png";
    QTest::newRow("listed wins over system database") << true << "jpg" << "image/x-lower";
    // The system database writes this type "audio/AMR".
    QTest::newRow("listed ignoring case wins over system database") << true << "AMR" << "audio/amr";
}

void TestRegistry::mimeType()
{
    QFETCH(bool, system);
    QFETCH(QString, extension);
    QFETCH(QString, expected);

    useRegistry(system);
    QCOMPARE(m_registry.getAssociatedMimeType(extension), expected);
}

void TestRegistry::systemDatabaseAlone_data()
{
    QTest::addColumn<QString>("extension");
    QTest::addColumn<QString>("expected");

    QTest::newRow("lower case") << "mp3" << "audio/mpeg";
    QTest::newRow("upper case") << "MP3" << "audio/mpeg";
    QTest::newRow("mixed case") << "Mp3" << "audio/mpeg";
    QTest::newRow("empty extension") << "" << "";
    QTest::newRow("a path is no extension") << "x/mp3" << "";
    QTest::newRow("octet-stream counts as unknown") << "qqzzy" << "";
}

void TestRegistry::systemDatabaseAlone()
{
    QFETCH(QString, extension);
    QFETCH(QString, expected);

    QVERIFY(m_device.write("[registry]\nsystem = 1\n"));
    QCOMPARE(m_registry.getAssociatedMimeType(extension), expected);
}

void TestRegistry::handler_data()
{
    QTest::addColumn<bool>("system");
    QTest::addColumn<int>("criterion");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected"); // null: no handler

    QTest::newRow("by extension") << false << 0 << "txt" << "editor";
    QTest::newRow("by extension, case ignored") << false << 0 << "TXT" << "editor";
    QTest::newRow("by the extension's type") << false << 0 << "mp3" << "mpeg-player";
    QTest::newRow("by the extension's family") << false << 0 << "ogg" << "player";
    QTest::newRow("type without handler nor family") << false << 0 << "jpg" << QString();
    QTest::newRow("exact extension picks the type") << false << 0 << "JPG" << "viewer";
    QTest::newRow("unlisted extension") << false << 0 << "png" << QString();
    QTest::newRow("empty extension") << false << 0 << "" << QString();
    QTest::newRow("a path is no extension") << false << 0 << "audio/*" << QString();
    QTest::newRow("by type") << false << 1 << "audio/mpeg" << "mpeg-player";
    QTest::newRow("by family") << false << 1 << "audio/x-wav" << "player";
    QTest::newRow("unhandled family") << false << 1 << "video/mp4" << QString();
    QTest::newRow("an extension is no type") << false << 1 << "txt" << QString();
    QTest::newRow("unknown criterion") << false << 2 << "txt" << QString();
    QTest::newRow("family of the system's type") << true << 0 << "wav" << "player";
    QTest::newRow("family of the system's type, upper case") << true << 0 << "WAV" << "player";
    QTest::newRow("system type without handler nor family") << true << 0 << "png" << QString();
    QTest::newRow("listed type wins over the system's") << true << 0 << "jpg" << QString();
}

void TestRegistry::handler()
{
    QFETCH(bool, system);
    QFETCH(int, criterion);
    QFETCH(QString, key);
    QFETCH(QString, expected);

    useRegistry(system);
    const QString handler =
        m_registry.getDefaultHandlerId(MIME_LOOKUP_CRITERIA(criterion), key, QString());
    QCOMPARE(handler, expected);
    QCOMPARE(handler.isNull(), expected.isNull());
}

void TestRegistry::extensions_data()
{
    QTest::addColumn<bool>("system");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QStringList>("listed"); // the device's keys: first, in file order
    QTest::addColumn<QStringList>("fromSystem"); // some of the system database's extensions
    QTest::addColumn<QStringList>("never");

    QTest::newRow("device keys only") << false << "audio/mpeg" << QStringList{"mp3"} << QStringList()
                                      << QStringList{"mpga"};
    QTest::newRow("type ignoring case") << false << "IMAGE/JPEG" << QStringList{"JPG"} << QStringList()
                                        << QStringList{"jpeg"};
    QTest::newRow("unlisted type") << false << "image/png" << QStringList() << QStringList()
                                   << QStringList{"png"};
    QTest::newRow("system's after the device's") << true << "audio/mpeg" << QStringList{"mp3"}
                                                 << QStringList{"mpga"} << QStringList();
    // jpg is the device's image/x-lower: asking for it would not give image/jpeg.
    QTest::newRow("not what the device maps elsewhere") << true << "IMAGE/JPEG" << QStringList{"JPG"}
                                                        << QStringList{"jpeg"} << QStringList{"jpg"};
    QTest::newRow("system type") << true << "image/png" << QStringList() << QStringList{"png"}
                                 << QStringList();
}

void TestRegistry::extensions()
{
    QFETCH(bool, system);
    QFETCH(QString, type);
    QFETCH(QStringList, listed);
    QFETCH(QStringList, fromSystem);
    QFETCH(QStringList, never);

    useRegistry(system);
    const QStringList extensions = m_registry.getAssociatedExtensions(type);
    QCOMPARE(extensions.mid(0, listed.size()), listed);
    if (!system)
        QCOMPARE(extensions.size(), listed.size());
    for (const QString &extension : fromSystem)
        QVERIFY2(extensions.contains(extension), qPrintable(extension));
    for (const QString &extension : never)
        QVERIFY2(!extensions.contains(extension), qPrintable(extension));
    QStringList folded = extensions;
    for (QString &extension : folded)
        extension = extension.toCaseFolded();
    QCOMPARE(folded.removeDuplicates(), 0);
}

void TestRegistry::isPicture_data()
{
    QTest::addColumn<bool>("system");
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("expected");

    QTest::newRow("listed image type") << false << "/a/photo.JPG" << true;
    QTest::newRow("any image subtype") << false << "/a/x.jpg" << true;
    QTest::newRow("audio") << false << "/a/song.mp3" << false;
    QTest::newRow("dot in a folder name only") << false << "/a.jpg/readme" << false;
    QTest::newRow("name ending in a dot") << false << "/a/pic." << false;
    QTest::newRow("unlisted") << false << "/a/p.png" << false;
    QTest::newRow("only the last dot counts") << false << "/a/x.jpg.txt" << false;
    QTest::newRow("a hidden file's name is its extension") << false << "/a/.jpg" << true;
    QTest::newRow("system database") << true << "/a/p.png" << true;
    QTest::newRow("system database, upper case") << true << "/a/P.PNG" << true;
}

void TestRegistry::isPicture()
{
    QFETCH(bool, system);
    QFETCH(QString, path);
    QFETCH(bool, expected);

    useRegistry(system);
    QCOMPARE(UTIL_MimeType::isPicture(path), expected);
}

void TestRegistry::answersFollowTheDevice()
{
    // Each answer is remembered until the device file changes.
    QVERIFY(m_device.write("[registry]\nsystem = 1\n[handlers]\nimage/* = viewer\n"));
    QCOMPARE(m_registry.getAssociatedMimeType("png"), "image/png");
    QCOMPARE(handlerOf("png"), "viewer");
    QVERIFY(m_device.write(
        "[registry]\nsystem = 1\n[mime]\npng = image/x-phone\n[handlers]\nimage/x-phone = phone-viewer\n"));
    QCOMPARE(m_registry.getAssociatedMimeType("png"), "image/x-phone");
    QCOMPARE(handlerOf("png"), "phone-viewer");
    QVERIFY(m_device.replace("[registry]\nsystem = 0\n"));
    QCOMPARE(m_registry.getAssociatedMimeType("png"), "");
    QVERIFY(handlerOf("png").isNull());
}

void TestRegistry::changeRightAfterACallIsSeen()
{
    // Rewritten in place and replaced by rename in turns, each asked at once.
    for (int round = 0; round < 40; ++round) {
        const QByteArray number = QByteArray::number(round);
        const QByteArray content =
            "[mime]\next = type/n" + number + "\n[handlers]\ntype/n" + number + " = app" + number + "\n";
        QVERIFY(round % 2 ? m_device.replace(content) : m_device.write(content));
        QCOMPARE(m_registry.getAssociatedMimeType("ext"), "type/n" + number);
        QCOMPARE(handlerOf("ext"), "app" + number);
    }
}

QTEST_GUILESS_MAIN(TestRegistry)
#include "tst_registry.moc"
