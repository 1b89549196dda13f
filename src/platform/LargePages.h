#pragma once

/// Have the C library put large blocks of memory on large pages, where Linux leaves that to programs. Without a
/// graphics card depth maps and pictures lie in such blocks, and touching their first byte in every 4 KiB takes longer
/// than filling them. The C library takes this wish from the environment and when a program starts only: so the process
/// begins its program anew, once. Call it first in main, with its arguments. Does nothing where GLIBC_TUNABLES is set,
/// and where it fails the program goes on as it is.
void useLargePages(char** arguments);
