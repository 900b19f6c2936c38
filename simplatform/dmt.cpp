#include "Dmt.h"

#include "device.h"
#include "journal.h"

#include <QString>

// ----- DMString --------------------------------------------------------------

DMString::DMString(const char *text)
{
    assign(text);
}

const char *DMString::c_str() const
{
    return m_buffer ? m_buffer->c_str() : nullptr;
}

bool DMString::empty() const
{
    return !m_buffer || m_buffer->empty();
}

void DMString::assign(const char *text)
{
    // Like the platform's string, an empty text holds no buffer at all.
    if (text && *text)
        m_buffer = std::make_unique<std::string>(text);
    else
        m_buffer.reset();
}

// ----- DmtPrincipal, DmtData -----------------------------------------------

DmtPrincipal::DmtPrincipal(const DMString &name) : m_name(name.c_str() ? name.c_str() : "") {}

const char *DmtPrincipal::getName() const
{
    return m_name.c_str();
}

DmtData::DmtData() = default;

DmtData::~DmtData() = default;

SYNCML_DM_RET_STATUS_T DmtData::GetString(DMString &value) const
{
    value.assign(m_value.c_str());
    return SYNCML_DM_SUCCESS;
}

void DmtData::setString(const std::string &value)
{
    m_value = value;
}

// ----- DmtNode, DmtTree -----------------------------------------------------

DmtNode::DmtNode(std::string path) : m_path(std::move(path)) {}

SYNCML_DM_RET_STATUS_T DmtNode::GetValue(DmtData &data) const
{
    // The simulated tree holds a single leaf: the MegaSIM card's name.
    static const std::string nameLeaf = "/MegaSIMName";
    if (m_path.size() < nameLeaf.size()
        || m_path.compare(m_path.size() - nameLeaf.size(), nameLeaf.size(), nameLeaf) != 0)
        return SYNCML_DM_NOT_FOUND;
    const auto device = KivSim::device();
    if (!device->megaSim.value)
        return SYNCML_DM_FAIL;
    data.setString(device->megaSim.name.toStdString());
    return SYNCML_DM_SUCCESS;
}

DmtTree::DmtTree(std::string root) : m_root(std::move(root)) {}

SYNCML_DM_RET_STATUS_T DmtTree::GetNode(const DMString &path, PDmtNode &node)
{
    if (!KivSim::device()->megaSim.node) {
        node.reset();
        return SYNCML_DM_NOT_FOUND;
    }
    node = std::make_shared<DmtNode>(m_root + '/' + (path.c_str() ? path.c_str() : ""));
    return SYNCML_DM_SUCCESS;
}

// ----- DmtTreeFactory -------------------------------------------------------

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
    tree = std::make_shared<DmtTree>(subtree.toStdString());
    return SYNCML_DM_SUCCESS;
}

bool DmtTreeFactory::Uninitialize()
{
    if (KivSim::Journal::enabled())
        KivSim::Journal::Line("DmtTreeFactory::Uninitialize").write();
    return true;
}
