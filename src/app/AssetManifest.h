#pragma once

#include <span>

/// A file that the game loads, and the name under which the library knows it.
struct Asset {
    const char* file;
    const char* name;
};

// Return what the game loads, in loading order. Its meshes and the height image are not among it: the library and the
// terrain load those themselves.
std::span<const Asset> shaderAssets();
std::span<const Asset> textureAssets();
std::span<const Asset> soundAssets();
