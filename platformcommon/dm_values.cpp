// The device-management tree's values, whatever tree answers: the strings,
// the principal and the data that the library makes and reads.
#include "Dmt.h"

#include <string>

struct DMString::Data
{
    std::string text;
};

DMString::DMString() = default;

DMString::DMString(const char *text)
{
    assign(text);
}

DMString::DMString(DMString &&other) noexcept = default;
DMString &DMString::operator=(DMString &&other) noexcept = default;
DMString::~DMString() = default;

const char *DMString::c_str() const
{
    return d ? d->text.c_str() : nullptr;
}

bool DMString::empty() const
{
    return !d;
}

void DMString::assign(const char *text)
{
    // Like the platform's string, an empty text holds no buffer at all.
    if (text && *text)
        d = std::make_unique<Data>(Data{text});
    else
        d.reset();
}

struct DmtPrincipal::Data
{
    std::string name;
};

DmtPrincipal::DmtPrincipal(const DMString &name)
    : d(std::make_unique<Data>(Data{name.c_str() ? name.c_str() : ""}))
{
}

DmtPrincipal::~DmtPrincipal() = default;

const char *DmtPrincipal::getName() const
{
    return d->name.c_str();
}

struct DmtData::Data
{
    std::string value;
};

DmtData::DmtData() : d(std::make_unique<Data>()) {}

DmtData::~DmtData() = default;

SYNCML_DM_RET_STATUS_T DmtData::SetString(const DMString &value)
{
    d->value = value.c_str() ? value.c_str() : "";
    return SYNCML_DM_SUCCESS;
}

SYNCML_DM_RET_STATUS_T DmtData::GetString(DMString &value) const
{
    value.assign(d->value.c_str());
    return SYNCML_DM_SUCCESS;
}

DmtNode::~DmtNode() = default;

DmtTree::~DmtTree() = default;
