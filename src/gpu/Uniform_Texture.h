#pragma once

#include "gpu/IUniform.h"

/// A texture on a texture unit. The texture is borrowed from the asset library.
class Uniform_Texture : public IUniform<TextureUniform> {
public:
    Uniform_Texture(Texture* image, int textureUnit) : unit(textureUnit), texture(image) {}

    TextureUniform get() override { return {texture, unit}; }

private:
    int unit;
    Texture* texture;
};
