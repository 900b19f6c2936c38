// The platform's icon store: pixmaps by icon file name.
#pragma once

#include "platform_export.h"

#include <QPixmap>

class KIVPLATFORM_EXPORT RES_ICON_Reader
{
public:
    RES_ICON_Reader();
    ~RES_ICON_Reader();

    // A null pixmap when the store has no icon of that name.
    QPixmap getIcon(const char *name, bool big);
};
