// A notice on a real window system (run under Xvfb): a modal window of the
// phone's width with its title icon, title, text and OK button. The test
// takes a screenshot of it while it waits for the user, then answers it.
#include "ZMessageDlg.h"

#include "RES_ICON_Reader.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

class TestNotice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void showsARealModalWindow()
    {
        QCOMPARE(QGuiApplication::platformName(), QStringLiteral("xcb"));
        const QString text = "This file can not be accessed via File Manager, please open the Contacts "
                             "application to view this file.";
        ZMessageDlg notice("Cannot Access", text, 2, 0);
        notice.setTitleIcon(RES_ICON_Reader().getIcon("info_pop.gif", true));
        QStringList texts;
        QImage screenshot;
        QTimer::singleShot(500, [&] {
            QWidget *shown = QApplication::activeModalWidget();
            QVERIFY(shown == &notice && notice.isVisible());
            for (const QLabel *label : notice.findChildren<QLabel *>())
                texts << (label->pixmap().isNull() ? label->text() : QStringLiteral("(icon)"));
            screenshot = notice.screen()->grabWindow(0, notice.x(), notice.y(), notice.width(), notice.height()).toImage();
            notice.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
        });
        QCOMPARE(notice.exec(), int(QDialog::Accepted));
        QCOMPARE(texts, (QStringList{"(icon)", "Cannot Access", text}));
        QVERIFY(screenshot.width() == 240 && screenshot.height() <= 320);
        QVERIFY(screenshot.save(QStringLiteral("notice.png"))); // for a person to look at
        QSet<QRgb> colours; // drawn: an icon and text in many shades, not a blank area
        for (int i = 0; i < screenshot.width() * screenshot.height(); ++i)
            colours.insert(screenshot.pixel(i % screenshot.width(), i / screenshot.width()));
        QVERIFY(colours.size() > 20);
    }
};

QTEST_MAIN(TestNotice)
#include "tst_notice.moc"
