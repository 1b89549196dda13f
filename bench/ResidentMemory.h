#pragma once

#include <fstream>
#include <string>

/// Resident memory of this process, KiB; 0 where the system does not tell.
inline long residentKib()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word != "VmRSS:") continue;
        long kib = 0;
        status >> kib;
        return kib;
    }
    return 0;
}
