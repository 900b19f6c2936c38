// The simulated phone's own icon set: every icon the library names, drawn in
// its size class, and nothing else.
#include "devicefile.h"
#include "types/icon_names.h"

#include "RES_ICON_Reader.h"

#include <QDir>
#include <QTest>

namespace Icons = Tambro::Icons;

namespace {

constexpr QSize ListSize(16, 16);

QImage iconImage(const char *name)
{
    return RES_ICON_Reader().getIcon(name, true).toImage();
}

} // namespace

class TestIconSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_device.write(QByteArray())); } // no icon folder: the built-in set

    void loadsInItsSizeClass_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("big");
        for (const Tambro::IconPair &pair : Icons::AllPairs) {
            QTest::newRow(pair.big) << QByteArray(pair.big) << true;
            QTest::newRow(pair.small) << QByteArray(pair.small) << false;
        }
        // Stands for both sizes of a fixed folder, yet is drawn at list size.
        QTest::newRow(Icons::PhoneMemory) << QByteArray(Icons::PhoneMemory) << false;
        QTest::newRow(Icons::ErrorNotice) << QByteArray(Icons::ErrorNotice) << true;
        QTest::newRow(Icons::InformationNotice) << QByteArray(Icons::InformationNotice) << true;
    }

    void loadsInItsSizeClass()
    {
        QFETCH(QByteArray, name);
        QFETCH(bool, big);
        const QImage image = iconImage(name.constData());
        QVERIFY(!image.isNull());
        QCOMPARE(image.width(), image.height());
        QVERIFY(big ? image.width() >= 2 * ListSize.width() : image.size() == ListSize);
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0); // drawn on a clear background
        m_seen.append(image);
        QCOMPARE(m_seen.count(image), 1); // no two icons look alike
    }

    // Catches a stray file, such as the drawing program's source, swept into the store.
    void storeHoldsTheSetAndNothingElse()
    {
        QStringList expected;
        for (const Tambro::IconPair &pair : Icons::AllPairs)
            expected << QLatin1String(pair.big) << QLatin1String(pair.small);
        for (const char *name : Icons::Singles)
            expected << QLatin1String(name);
        expected.sort();
        QCOMPARE(QDir(QStringLiteral(":/kivsim/icons")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name),
                 expected);
    }

    void otherNamesAreNull()
    {
        for (const char *name : {"FM_PIC_THB.GIF", "fm_pic_thb", "..", "../icons/fm_pic_thb.gif"})
            QVERIFY2(iconImage(name).isNull(), name);
    }

private:
    TestDeviceFile m_device;
    QList<QImage> m_seen;
};

QTEST_MAIN(TestIconSet)
#include "tst_icon_set.moc"
