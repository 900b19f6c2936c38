// Which storage partition a folder belongs to, by the partitions' mount
// folders. Each question has its own test of the mount folder, as callers of
// the phone's file manager rely on.
#pragma once

#include "TAMBRO_Global.h"

#include <QString>

namespace Tambro {

// The number of the first partition whose mount folder passes the test; 0
// for none. The count is read again at every step, as a scan may change it.
template<typename Test>
int firstPartition(Test test)
{
    for (int parti = 1; parti <= TAMBRO_Global::getPartiActNumber(); ++parti) {
        if (test(TAMBRO_Global::getPartiName(parti)))
            return parti;
    }
    return 0;
}

} // namespace Tambro
