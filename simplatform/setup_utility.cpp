#include "SETUP_Utility.h"

#include "device.h"
#include "journal.h"

SETUP_Utility::SETUP_Utility() = default;

SETUP_Utility::~SETUP_Utility() = default;

bool SETUP_Utility::getFlexBit(unsigned short bit, bool &value)
{
    if (KivSim::Journal::enabled())
        KivSim::Journal::Line("SETUP_Utility::getFlexBit").arg("bit", int(bit)).write();
    const auto device = KivSim::device();
    const auto listed = device->flexBits.constFind(bit);
    if (listed == device->flexBits.cend())
        return false;
    value = *listed;
    return true;
}
