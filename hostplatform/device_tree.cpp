// No MegaSIM on such a machine: the device-management tree has no node.
#include "Dmt.h"

bool DmtTreeFactory::Initialize()
{
    return true;
}

SYNCML_DM_RET_STATUS_T DmtTreeFactory::GetSubtree(const DmtPrincipal &, const DMString &, PDmtTree &tree)
{
    tree.reset();
    return SYNCML_DM_NOT_FOUND;
}

bool DmtTreeFactory::Uninitialize()
{
    return true;
}
