// The simulated device-management tree: the MegaSIM card's name from the
// device file.
#include "Dmt.h"

#include "device.h"
#include "journal.h"

#include <QString>

#include <string>

namespace {

// The simulated tree holds a single leaf: the MegaSIM card's name.
class SimulatedNode : public DmtNode
{
public:
    explicit SimulatedNode(std::string path) : m_path(std::move(path)) {}

    SYNCML_DM_RET_STATUS_T GetValue(DmtData &data) const override
    {
        static const std::string nameLeaf = "/MegaSIMName";
        if (m_path.size() < nameLeaf.size()
            || m_path.compare(m_path.size() - nameLeaf.size(), nameLeaf.size(), nameLeaf) != 0)
            return SYNCML_DM_NOT_FOUND;
        const auto device = KivSim::device();
        if (!device->megaSim.value)
            return SYNCML_DM_FAIL;
        return data.SetString(DMString(device->megaSim.name.constData()));
    }

private:
    std::string m_path;
};

class SimulatedTree : public DmtTree
{
public:
    explicit SimulatedTree(std::string root) : m_root(std::move(root)) {}

    SYNCML_DM_RET_STATUS_T GetNode(const DMString &path, PDmtNode &node) override
    {
        if (!KivSim::device()->megaSim.node) {
            node.reset();
            return SYNCML_DM_NOT_FOUND;
        }
        node = std::make_shared<SimulatedNode>(m_root + '/' + (path.c_str() ? path.c_str() : ""));
        return SYNCML_DM_SUCCESS;
    }

private:
    std::string m_root;
};

} // namespace

bool DmtTreeFactory::Initialize()
{
    if (KivSim::Journal::enabled())
        KivSim::Journal::Line("DmtTreeFactory::Initialize").write();
    return KivSim::device()->megaSim.initialize;
}

SYNCML_DM_RET_STATUS_T DmtTreeFactory::GetSubtree(const DmtPrincipal &principal,
                                                  const DMString &path, PDmtTree &tree)
{
    Q_UNUSED(principal); // the simulated tree grants every principal access
    const QString subtree = QString::fromUtf8(path.c_str());
    if (KivSim::Journal::enabled())
        KivSim::Journal::Line("DmtTreeFactory::GetSubtree").arg("path", subtree).write();
    const int error = KivSim::device()->megaSim.subtree;
    if (error != SYNCML_DM_SUCCESS) {
        tree.reset();
        return error;
    }
    tree = std::make_shared<SimulatedTree>(subtree.toStdString());
    return SYNCML_DM_SUCCESS;
}

bool DmtTreeFactory::Uninitialize()
{
    if (KivSim::Journal::enabled())
        KivSim::Journal::Line("DmtTreeFactory::Uninitialize").write();
    return true;
}
