// An application built against the installed library.
#include <TAMBRO_Global.h>

#include <QGuiApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QGuiApplication app(argc, argv);
    QTextStream out(stdout);
    TAMBRO_Global::instance();
    out << TAMBRO_Global::getPartiShortName(1) << '|' << TAMBRO_IsDeviceMountedbyNum(2) << '|'
        << TAMBRO_GetDefaultMMCSDPartition() << '\n';
    return 0;
}
