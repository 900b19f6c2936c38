// The device-management tree: nodes addressed by path, read by a principal.
#pragma once

#include "platform_export.h"

#include <memory>

typedef int SYNCML_DM_RET_STATUS_T;
#define SYNCML_DM_SUCCESS 0
#define SYNCML_DM_FAIL 1
#define SYNCML_DM_NOT_FOUND 404

// The tree's text type. An empty text holds no buffer at all.
class KIVPLATFORM_EXPORT DMString
{
public:
    DMString();
    DMString(const char *text);
    DMString(DMString &&other) noexcept;
    DMString &operator=(DMString &&other) noexcept;
    ~DMString();

    // Null when the string holds no buffer.
    const char *c_str() const;
    bool empty() const;
    void assign(const char *text);

private:
    struct Data;
    std::unique_ptr<Data> d;
};

// Who reads the tree; the tree grants access by the principal's name.
class KIVPLATFORM_EXPORT DmtPrincipal
{
public:
    explicit DmtPrincipal(const DMString &name);
    ~DmtPrincipal();
    const char *getName() const;

private:
    struct Data;
    std::unique_ptr<Data> d;
};

// A node's value.
class KIVPLATFORM_EXPORT DmtData
{
public:
    DmtData();
    ~DmtData();
    DmtData(const DmtData &) = delete;
    DmtData &operator=(const DmtData &) = delete;

    SYNCML_DM_RET_STATUS_T SetString(const DMString &value);
    SYNCML_DM_RET_STATUS_T GetString(DMString &value) const;

private:
    struct Data;
    std::unique_ptr<Data> d;
};

class KIVPLATFORM_EXPORT DmtNode
{
public:
    virtual ~DmtNode();
    virtual SYNCML_DM_RET_STATUS_T GetValue(DmtData &data) const = 0;
};
typedef std::shared_ptr<DmtNode> PDmtNode;

class KIVPLATFORM_EXPORT DmtTree
{
public:
    virtual ~DmtTree();
    // Looks a node up by its path relative to the tree's root.
    virtual SYNCML_DM_RET_STATUS_T GetNode(const DMString &path, PDmtNode &node) = 0;
};
typedef std::shared_ptr<DmtTree> PDmtTree;

class KIVPLATFORM_EXPORT DmtTreeFactory
{
public:
    // Every Initialize, also a failed one, is paired with an Uninitialize.
    static bool Initialize();
    static SYNCML_DM_RET_STATUS_T GetSubtree(const DmtPrincipal &principal, const DMString &path,
                                             PDmtTree &tree);
    static bool Uninitialize();
};
