#pragma once

#include <span>

/// A file that the game loads, and the name under which the library knows it.
struct Asset {
    const char* file;
    const char* name;
};

/// What the game loads besides its meshes (the library knows those) and the height image (the terrain reads it), in
/// loading order.
std::span<const Asset> shaderAssets();
std::span<const Asset> textureAssets();
std::span<const Asset> soundAssets();
