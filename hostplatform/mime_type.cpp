// A picture is a file whose extension the registry gives an image type.
#include "AM_MimeRegistry.h"
#include "UTIL_MimeType.h"

#include <QFileInfo>

bool UTIL_MimeType::isPicture(const QString &path)
{
    const QString fileName = QFileInfo(path).fileName();
    const qsizetype dot = fileName.lastIndexOf(u'.');
    return dot >= 0
        && AM_MimeRegistry().getAssociatedMimeType(fileName.mid(dot + 1)).startsWith(QLatin1String("image/"),
                                                                                     Qt::CaseInsensitive);
}
