#include "TAMBRO_FixedFolder.h"

QString TAMBRO_FixedFolder::m_sFMRootPath;
