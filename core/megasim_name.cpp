#include "megasim_name.h"

#include "translation.h"

#include <Dmt.h>

namespace Tambro {

namespace {

constexpr char LocalPrincipal[] = "localhost";
constexpr char MegaSimSubtree[] = "./DevDetail/Ext/Conf/MegaSIM";
constexpr char MegaSimNameNode[] = "MegaSIMName";

// The node's text; empty when the tree has no usable name.
QString readNameFromTree(const DmtPrincipal &principal)
{
    PDmtTree tree;
    if (DmtTreeFactory::GetSubtree(principal, MegaSimSubtree, tree) != SYNCML_DM_SUCCESS || !tree)
        return QString();
    PDmtNode node;
    if (tree->GetNode(MegaSimNameNode, node) != SYNCML_DM_SUCCESS || !node)
        return QString();
    DMString value;
    {
        DmtData data;
        if (node->GetValue(data) == SYNCML_DM_SUCCESS)
            data.GetString(value);
    }
    // An absent buffer counts as the empty text.
    return QString::fromUtf8(value.c_str() ? value.c_str() : "");
}

} // namespace

QString readMegaSimName()
{
    const DmtPrincipal principal{DMString(LocalPrincipal)};
    QString name = translate("TAMBRO_Global", "TXT_RID_LIST_A_MEGASIM", "MegaSIM");
    if (DmtTreeFactory::Initialize()) {
        const QString fromTree = readNameFromTree(principal);
        if (!fromTree.isEmpty())
            name = fromTree;
    }
    // Uninitialize pairs every Initialize attempt, also a failed one.
    DmtTreeFactory::Uninitialize();
    return name;
}

} // namespace Tambro
