#include "UTIL_MimeType.h"

#include "device.h"

#include <QFileInfo>

bool UTIL_MimeType::isPicture(const QString &path)
{
    const QString fileName = QFileInfo(path).fileName();
    const qsizetype dot = fileName.lastIndexOf(u'.');
    if (dot < 0)
        return false;
    const QString mimeType = KivSim::device()->mime->typeOf(fileName.mid(dot + 1));
    return mimeType.startsWith(QLatin1String("image/"), Qt::CaseInsensitive);
}
