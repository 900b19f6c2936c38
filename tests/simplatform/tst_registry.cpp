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
    void handler_data();
    void handler();
    void extensions();
    void isPicture_data();
    void isPicture();

private:
    void useRegistry(bool systemDatabase)
    {
        QVERIFY(m_device.write(registry + "[registry]\nsystem = " + (systemDatabase ? "1" : "0")));
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
    QTest::newRow("empty extension") << true << "" << "";
    QTest::newRow("system database for unlisted") << true << "png" << "image/png";
    QTest::newRow("listed wins over system database") << true << "jpg" << "image/x-lower";
    QTest::newRow("octet-stream counts as unknown") << true << "qqzzy" << "";
}

void TestRegistry::mimeType()
{
    QFETCH(bool, system);
    QFETCH(QString, extension);
    QFETCH(QString, expected);

    useRegistry(system);
    QCOMPARE(m_registry.getAssociatedMimeType(extension), expected);
}

void TestRegistry::handler_data()
{
    QTest::addColumn<int>("criterion");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("expected"); // null: no handler

    QTest::newRow("by extension") << 0 << "txt" << "editor";
    QTest::newRow("by extension, case ignored") << 0 << "TXT" << "editor";
    QTest::newRow("by the extension's type") << 0 << "mp3" << "mpeg-player";
    QTest::newRow("by the extension's family") << 0 << "ogg" << "player";
    QTest::newRow("type without handler nor family") << 0 << "jpg" << QString();
    QTest::newRow("exact extension picks the type") << 0 << "JPG" << "viewer";
    QTest::newRow("unlisted extension") << 0 << "png" << QString();
    QTest::newRow("empty extension") << 0 << "" << QString();
    QTest::newRow("a path is no extension") << 0 << "audio/*" << QString();
    QTest::newRow("by type") << 1 << "audio/mpeg" << "mpeg-player";
    QTest::newRow("by family") << 1 << "audio/x-wav" << "player";
    QTest::newRow("unhandled family") << 1 << "video/mp4" << QString();
    QTest::newRow("an extension is no type") << 1 << "txt" << QString();
    QTest::newRow("unknown criterion") << 2 << "txt" << QString();
}

void TestRegistry::handler()
{
    QFETCH(int, criterion);
    QFETCH(QString, key);
    QFETCH(QString, expected);

    useRegistry(false);
    const QString handler =
        m_registry.getDefaultHandlerId(MIME_LOOKUP_CRITERIA(criterion), key, QString());
    QCOMPARE(handler, expected);
    QCOMPARE(handler.isNull(), expected.isNull());
}

void TestRegistry::extensions()
{
    useRegistry(true);
    QCOMPARE(m_registry.getAssociatedExtensions("audio/mpeg"), QStringList{"mp3"});
    QCOMPARE(m_registry.getAssociatedExtensions("IMAGE/JPEG"), QStringList{"JPG"});
    QCOMPARE(m_registry.getAssociatedExtensions("image/png"), QStringList());
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
    QTest::newRow("system database") << true << "/a/p.png" << true;
}

void TestRegistry::isPicture()
{
    QFETCH(bool, system);
    QFETCH(QString, path);
    QFETCH(bool, expected);

    useRegistry(system);
    QCOMPARE(UTIL_MimeType::isPicture(path), expected);
}

QTEST_GUILESS_MAIN(TestRegistry)
#include "tst_registry.moc"
