// The phone's fixed folder structure.
#pragma once

#include "kivtambro_export.h"

#include <QString>

class KIVTAMBRO_EXPORT TAMBRO_FixedFolder
{
public:
    // Absolute root of the file manager's folder tree, without trailing slash.
    static QString m_sFMRootPath;
};
