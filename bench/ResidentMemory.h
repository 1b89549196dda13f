#pragma once

#include <malloc.h>

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

/// What the program holds of the heap, KiB. Unlike resident memory it falls again after a moment that needed much.
inline long heapKib()
{
    const struct mallinfo2 heap = mallinfo2();
    return static_cast<long>((heap.uordblks + heap.hblkhd) / 1024);
}
