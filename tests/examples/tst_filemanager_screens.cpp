// Pictures of the file manager on a real window system (Xvfb): the root, a
// folder as a list and as a grid, the details view and a notice, written as
// PNG files into $FILEMANAGER_PICTURES and checked through their widgets.
#include "details_dialog.h"
#include "main_window.h"

#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QAction>
#include <QDir>
#include <QLabel>
#include <QListView>
#include <QSet>
#include <QTest>
#include <QTimer>
#include <QTreeView>

namespace {

const QString Root = QStringLiteral("/kivlocal/download/tambro");

// Saves the widget's picture; false when it is blank or cannot be written.
bool savePicture(QWidget *widget, const QString &name)
{
    QCoreApplication::processEvents();
    const QImage image = widget->grab().toImage();
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 4)
        for (int x = 0; x < image.width(); x += 4)
            colours.insert(image.pixel(x, y));
    const QString folder = qEnvironmentVariable("FILEMANAGER_PICTURES", QDir::tempPath());
    return colours.size() > 8 && image.save(QDir(folder).filePath(name + QStringLiteral(".png")));
}

QStringList texts(QWidget *widget)
{
    QStringList all;
    for (const QLabel *label : widget->findChildren<QLabel *>())
        all << label->text();
    return all;
}

} // namespace

class TestFileManagerScreens : public QObject
{
    Q_OBJECT

    MainWindow m_window;

private Q_SLOTS:
    void initTestCase()
    {
        TAMBRO_Global::instance();
        TAMBRO_FixedFolder::initialize();
        m_window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&m_window));
        QCOMPARE(m_window.size(), QSize(240, 320));
    }

    void rootAndFolder()
    {
        QVERIFY(m_window.openFolder(Root));
        QVERIFY(savePicture(&m_window, "root"));
        QCOMPARE(m_window.location()->text(), "My Files");
        QVERIFY(m_window.listView()->isVisible());

        QVERIFY(m_window.openFolder(Root + "/picture"));
        QVERIFY(savePicture(&m_window, "folder-list"));
        m_window.findChild<QAction *>("grid")->setChecked(true);
        QVERIFY(m_window.gridView()->isVisible());
        QVERIFY(savePicture(&m_window, "folder-grid"));
        m_window.findChild<QAction *>("grid")->setChecked(false);
    }

    void details()
    {
        DetailsDialog dialog(Root + "/audio", "Audio", &m_window);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QVERIFY(savePicture(&dialog, "details"));
        const QStringList shown = texts(&dialog);
        QVERIFY2(shown.contains("Audio") && shown.contains("No") && shown.filter(" free of ").size() == 1,
                 qPrintable(shown.join('|')));
    }

    // The phone's notice for a file no application opens, as a real window.
    void notice()
    {
        QVERIFY(m_window.openFolder(Root + "/documents"));
        bool saved = false;
        QStringList shown;
        QTimer::singleShot(200, [&] {
            QWidget *notice = QApplication::activeModalWidget();
            if (!notice)
                return;
            saved = savePicture(notice, "notice");
            shown = texts(notice);
            notice->close();
        });
        for (int row = 0; row < m_window.model()->rowCount(); ++row) {
            if (m_window.model()->path(row).endsWith("Anna Berg.vcf"))
                m_window.listView()->setCurrentIndex(m_window.model()->index(row, 0));
        }
        m_window.findChild<QAction *>("open")->trigger();
        QVERIFY(saved);
        QVERIFY2(shown.contains("Cannot Access"), qPrintable(shown.join('|')));
    }
};

QTEST_MAIN(TestFileManagerScreens)
#include "tst_filemanager_screens.moc"
