#include "services_entry.h"

#include <TAMBRO_DYNAMIC_Interface.h>

extern "C" {

__attribute__((visibility("default"))) TAMBRO_UTIL_Interface *TAMBRO_EXPORT_CreateInterface()
{
    return KivPlatform::makeServices();
}

__attribute__((visibility("default"))) int TAMBRO_EXPORT_DeleteInterface(TAMBRO_UTIL_Interface **service)
{
    delete *service;
    *service = nullptr;
    return 0;
}
}
