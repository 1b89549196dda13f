#pragma once

/// Make the folder that holds Shader/, Textures/, Models/ and Audio/ the working directory. A working directory that
/// already holds them stays; otherwise the share folder beside an installed program, then the source tree of a build.
/// Return false, with one log line at level 0, when none of them is there.
bool enterDataFolder();
