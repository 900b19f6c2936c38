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

namespace {

const QString Root = QStringLiteral("/kivlocal/download/tambro");

// Saves the widget's picture and returns the texts it shows; nothing when
// the picture is blank or cannot be written.
QStringList savePicture(QWidget *widget, const QString &name)
{
    QCoreApplication::processEvents();
    const QImage image = widget->grab().toImage();
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 4)
        for (int x = 0; x < image.width(); x += 4)
            colours.insert(image.pixel(x, y));
    const QString file = QDir(qEnvironmentVariable("FILEMANAGER_PICTURES", QDir::tempPath())).filePath(name + ".png");
    if (colours.size() <= 8 || !image.save(file))
        return {};
    QStringList texts{QStringLiteral("saved")};
    for (const QLabel *label : widget->findChildren<QLabel *>())
        texts << label->text();
    return texts;
}

} // namespace

class TestFileManagerScreens : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pictures()
    {
        TAMBRO_Global::instance();
        TAMBRO_FixedFolder::initialize();
        MainWindow window;
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.size(), QSize(240, 320));
        QVERIFY(window.openFolder(Root));
        QVERIFY(savePicture(&window, "root").contains("My Files"));
        QVERIFY(window.openFolder(Root + "/picture"));
        QVERIFY(savePicture(&window, "folder-list").contains("My Files/Pictures"));
        window.findChild<QAction *>("grid")->setChecked(true);
        QVERIFY(window.gridView()->isVisible() && !savePicture(&window, "folder-grid").isEmpty());

        DetailsDialog details(Root + "/audio", "Audio", &window);
        details.show();
        QVERIFY(QTest::qWaitForWindowExposed(&details));
        const QStringList shown = savePicture(&details, "details");
        QVERIFY2(shown.contains("Audio") && shown.filter(" free of ").size() == 1, qPrintable(shown.join('|')));

        // The phone's notice for a file no application opens, a real window.
        QStringList notice;
        QTimer::singleShot(200, [&] {
            if (QWidget *dialog = QApplication::activeModalWidget()) {
                notice = savePicture(dialog, "notice");
                dialog->close();
            }
        });
        QVERIFY(window.openFolder(Root + "/documents"));
        const int card = int(window.model()->match(window.model()->index(0, 0), FolderModel::PathRole,
                                                   Root + "/documents/Anna Berg.vcf").value(0).row());
        window.gridView()->setCurrentIndex(window.model()->index(card, 0));
        window.findChild<QAction *>("open")->trigger();
        QVERIFY2(notice.contains("Cannot Access"), qPrintable(notice.join('|')));
    }
};

QTEST_MAIN(TestFileManagerScreens)
#include "tst_filemanager_screens.moc"
