#include "open_command.h"

#include "text_table.h"

#include <TAMBRO_Global.h>
#include <ZConfig.h>

#include <QJsonObject>

namespace {

QString textTable(const QJsonObject &settings)
{
    TextTable table({QStringLiteral("Settings file"), settings[QStringLiteral("file")].toString()});
    table.addRow({QStringLiteral("Sort order"), QString::number(settings[QStringLiteral("sortOrder")].toInt())});
    for (const char *flag : {"mmsBlog", "blogCenter", "email", "postcard"})
        table.addRow({QLatin1String(flag), settings[QLatin1String(flag)].toBool() ? QStringLiteral("on")
                                                                                 : QStringLiteral("off")});
    return table.toString();
}

} // namespace

int runSettingsCommand(QTextStream &out, const Request &request)
{
    const QString file = TAMBRO_Global::getConfigFile();
    // Read as the image viewer's request reads it: group "sortType", key "tambro".
    const int sortOrder = ZConfig(file, false).readNumEntry(QStringLiteral("sortType"), QStringLiteral("tambro"), 0);
    const QJsonObject settings{{QStringLiteral("file"), file},
                               {QStringLiteral("sortOrder"), sortOrder},
                               {QStringLiteral("mmsBlog"), TAMBRO_Global::getMMSBlogFlexFlag()},
                               {QStringLiteral("blogCenter"), TAMBRO_Global::getBlogCenterFlexFlag()},
                               {QStringLiteral("email"), TAMBRO_Global::getEmailFlexFlag()},
                               {QStringLiteral("postcard"), TAMBRO_Global::getPostcardFlexFlag()}};
    return printReport(out, request, settings, textTable);
}
