// An application built against the installed library.
#include <TAMBRO_Global.h>
#include <TAMBRO_ListView.h>

#include <QGuiApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    QTextStream out(stdout);
    TAMBRO_Global::instance();
    TAMBRO_ListView root;
    root.setFolder(QStringLiteral("/kivlocal/download/tambro"));
    out << TAMBRO_Global::getPartiShortName(1) << '|' << TAMBRO_IsDeviceMountedbyNum(2) << '|'
        << TAMBRO_GetDefaultMMCSDPartition() << '|' << root.shownName(0) << '\n';
    return 0;
}
