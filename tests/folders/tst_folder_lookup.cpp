// What the library tells about preloaded content and single folders, on a
// phone whose folder structure file the tests wrote, with a test catalogue
// standing in for the user's language.
#include <TAMBRO_FixedFolder.h>

#include <QTest>
#include <QTranslator>

namespace {

const QString Root = QStringLiteral("/kivlocal/download/tambro/root");
const QString Untouched = QStringLiteral("untouched");

} // namespace

class TestFolderLookup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_catalogue.load(QStringLiteral(":/test-i18n/folders_test_de.qm")));
        QCoreApplication::installTranslator(&m_catalogue);
        QCOMPARE(TAMBRO_FixedFolder::m_sFMRootPath, Root);
    }

    void preloadPaths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("answers"); // p preload folder, r its root, t preload tag

        QTest::newRow("the root is no preload folder") << "/usr/data_resource" << "r";
        QTest::newRow("merely the root's characters first") << "/usr/data_resourcex" << "p";
        QTest::newRow("case counts") << "/usr/Data_resource/a" << "";
        QTest::newRow("root further in") << "/x/usr/data_resource/a" << "";
        QTest::newRow("tag form is no real path") << "//ZELK_PRELOAD:/a" << "t";
        QTest::newRow("tag in the middle") << "/in//ZELK_PRELOAD:/middle" << "t";
        QTest::newRow("tag one slash short") << "/ZELK_PRELOAD:/pic" << "";
    }

    void preloadPaths()
    {
        QFETCH(QString, path);
        QFETCH(QString, answers);
        QCOMPARE(TAMBRO_FixedFolder::isPreloadFolder(path), answers.contains(u'p'));
        QCOMPARE(TAMBRO_FixedFolder::isPreloadFolderRoot(path), answers.contains(u'r'));
        QCOMPARE(TAMBRO_FixedFolder::hasPreloadFolderTag(path), answers.contains(u't'));
    }

    void preloadParent_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("parentPath");
        QTest::addColumn<QString>("parentName"); // untouched: none found

        QTest::newRow("top level is the user's root") << "/usr/data_resource/tones" << Root << "Root Title";
        QTest::newRow("relative parent under the root, translated")
            << "/usr/data_resource/pics" << Root + "/alpha" << "Alpha-Ordner";
        QTest::newRow("tagged parent is preloaded too")
            << "/usr/data_resource/nested/deeper" << "/usr/data_resource/nested" << "Nested";
        QTest::newRow("parent without a name stays unnamed") << "/usr/data_resource/unnamed" << Root + "/a/b/c" << "";
        QTest::newRow("tag in the middle is replaced by position")
            << "/usr/data_resource/odd" << "/usr/data_resourceAD:/middle" << "";
        QTest::newRow("no parent_path empties the path only") << "/usr/data_resource/orphan" << "" << Untouched;
        QTest::newRow("a user's folder has none") << Root + "/alpha" << Untouched << Untouched;
    }

    void preloadParent()
    {
        QFETCH(QString, path);
        QFETCH(QString, parentPath);
        QFETCH(QString, parentName);
        QString actualPath = Untouched;
        QString actualName = Untouched;
        QCOMPARE(TAMBRO_FixedFolder::getPreloadFolderParent(path, actualPath, actualName), parentName != Untouched);
        QCOMPARE(actualPath, parentPath);
        QCOMPARE(actualName, parentName);
    }

    void preloadFileName_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("keepExtension");
        QTest::addColumn<QString>("name"); // untouched: not named

        const QString tones = QStringLiteral("/usr/data_resource/tones/");
        QTest::newRow("translated, with extension") << tones + "Beep.mid" << true << "Piep.mid";
        QTest::newRow("only the last dot ends the base") << tones + "Beep.v2.mid" << true << "Beep.v2.mid";
        QTest::newRow("no extension, nothing appended") << tones + "README" << true << "README";
        QTest::newRow("dot file is all extension") << tones + ".hidden" << true << ".hidden";
        QTest::newRow("dot file without extension") << tones + ".hidden" << false << "";
        QTest::newRow("Cyrillic name read as UTF-8") << tones + "Мелодия.mid" << true << "Мелодия.mid";
        QTest::newRow("translation beginning with the name is decoded again")
            << tones + "Ring.mid" << true << QStringLiteral(u"Ring\uFFFD.mid");
        QTest::newRow("outside the preloaded content") << Root + "/Beep.mid" << true << Untouched;
        QTest::newRow("slash only at the start") << "/Beep.mid" << true << Untouched;
    }

    void preloadFileName()
    {
        QFETCH(QString, path);
        QFETCH(bool, keepExtension);
        QFETCH(QString, name);
        QString actual = Untouched;
        QCOMPARE(TAMBRO_FixedFolder::trPreloadFile(path, actual, keepExtension), name != Untouched);
        QCOMPARE(actual, name);
    }

    void folder_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("absolute");
        QTest::addColumn<QStringList>("iconsAndName"); // empty: the record is left alone

        const QString big = QStringLiteral("fm_folder_thb.gif");
        const QString small = QStringLiteral("fm_folder_small.gif");
        QTest::newRow("root is the top level") << Root << true << QStringList{big, small, "Root Title"};
        QTest::newRow("icons and translated name")
            << Root + "/alpha" << true << QStringList{"alpha_thb.gif", "alpha_small.gif", "Alpha-Ordner"};
        QTest::newRow("a group name as it stands")
            << "/alpha" << false << QStringList{"alpha_thb.gif", "alpha_small.gif", "Alpha-Ordner"};
        QTest::newRow("empty icon entry gives the generic icon")
            << Root + "/zeta" << true << QStringList{big, small, "Zeta Folder"};
        QTest::newRow("no name gives the last component") << Root + "/a/b/c" << true << QStringList{big, small, "c"};
        QTest::newRow("preloaded folder by its tag form")
            << "/usr/data_resource/tones" << false << QStringList{"tones_thb.gif", small, "Töne"};
        QTest::newRow("root found further in cuts the first characters")
            << "/x" + Root << true << QStringList{big, small, "ot"};
        QTest::newRow("preload root is outside the root") << "/usr/data_resource" << true << QStringList();
        QTest::newRow("a path outside the root") << "/elsewhere/x" << true << QStringList();
    }

    void folder()
    {
        QFETCH(QString, path);
        QFETCH(bool, absolute);
        QFETCH(QStringList, iconsAndName);
        FixedFolder record{Untouched, Untouched, Untouched, Untouched};
        QCOMPARE(TAMBRO_FixedFolder::getFolder(path, record, absolute), !iconsAndName.isEmpty());
        if (iconsAndName.isEmpty())
            iconsAndName = QStringList{Untouched, Untouched, Untouched};
        QCOMPARE((QStringList{record.bigIcon, record.smallIcon, record.displayName}), iconsAndName);
        QCOMPARE(record.absolutePath, Untouched);
    }

private:
    QTranslator m_catalogue;
};

QTEST_GUILESS_MAIN(TestFolderLookup)
#include "tst_folder_lookup.moc"
