// The phone's file manager: run it on the simulated phone with
//   kivsim -- filemanager [FOLDER]
#include "main_window.h"

#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QApplication>

int main(int argc, char *argv[])
{
    // Qt is handed no argument of the user's: it would take its own options
    // (-platform, ...) out of them, and a folder may have such a name.
    int qtArgc = 1;
    QApplication application(qtArgc, argv);
    TAMBRO_Global::instance();
    TAMBRO_FixedFolder::initialize(); // the fixed folders exist before the first listing
    MainWindow window;
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : TAMBRO_FixedFolder::m_sFMRootPath;
    if (!window.openFolder(folder) && !window.openFolder(TAMBRO_FixedFolder::m_sFMRootPath)) {
        qCritical("filemanager: cannot read %s or the root", qPrintable(folder));
        return 1;
    }
    window.show();
    return application.exec();
}
