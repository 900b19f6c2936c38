// The device-management tree: nodes addressed by path, read by a principal.
#pragma once

#include "platform_export.h"

#include <memory>
#include <string>

typedef int SYNCML_DM_RET_STATUS_T;
#define SYNCML_DM_SUCCESS 0
#define SYNCML_DM_FAIL 1
#define SYNCML_DM_NOT_FOUND 404

class KIVPLATFORM_EXPORT DMString
{
public:
    DMString() = default;
    DMString(const char *text);

    // Null when the string holds no buffer.
    const char *c_str() const;
    bool empty() const;
    void assign(const char *text);

private:
    std::unique_ptr<std::string> m_buffer;
};

class KIVPLATFORM_EXPORT DmtPrincipal
{
public:
    explicit DmtPrincipal(const DMString &name);
    const char *getName() const;

private:
    std::string m_name;
};

class KIVPLATFORM_EXPORT DmtData
{
public:
    DmtData();
    ~DmtData();

    SYNCML_DM_RET_STATUS_T GetString(DMString &value) const;
    void setString(const std::string &value);

private:
    std::string m_value;
};

class KIVPLATFORM_EXPORT DmtNode
{
public:
    explicit DmtNode(std::string path);
    SYNCML_DM_RET_STATUS_T GetValue(DmtData &data) const;

private:
    std::string m_path;
};
typedef std::shared_ptr<DmtNode> PDmtNode;

class KIVPLATFORM_EXPORT DmtTree
{
public:
    explicit DmtTree(std::string root);
    // Looks a node up by its path relative to the tree's root.
    SYNCML_DM_RET_STATUS_T GetNode(const DMString &path, PDmtNode &node);

private:
    std::string m_root;
};
typedef std::shared_ptr<DmtTree> PDmtTree;

class KIVPLATFORM_EXPORT DmtTreeFactory
{
public:
    static bool Initialize();
    static SYNCML_DM_RET_STATUS_T GetSubtree(const DmtPrincipal &principal, const DMString &path,
                                             PDmtTree &tree);
    static bool Uninitialize();
};
