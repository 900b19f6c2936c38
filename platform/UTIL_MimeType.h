// Picture test by file name.
#pragma once

#include "platform_export.h"

#include <QString>

class KIVPLATFORM_EXPORT UTIL_MimeType
{
public:
    static bool isPicture(const QString &path);
};
