#include "render/TextureFilters.h"

#include "assets/Library.h"
#include "gpu/Texture.h"

#include <GL/glew.h>

namespace {

constexpr int kMinificationModes = 3;

// By linear magnification, then minification mode.
constexpr GLint kMinification[2][kMinificationModes] = {
    {GL_NEAREST, GL_NEAREST_MIPMAP_NEAREST, GL_NEAREST_MIPMAP_LINEAR},
    {GL_NEAREST, GL_LINEAR_MIPMAP_NEAREST, GL_LINEAR_MIPMAP_LINEAR},
};

} // namespace

void TextureFilters::toggleMagnification()
{
    linearMagnification = !linearMagnification;
    apply();
}

void TextureFilters::cycleMinification()
{
    minificationMode = (minificationMode + 1) % kMinificationModes;
    apply();
}

void TextureFilters::reset()
{
    *this = {};
    apply();
}

void TextureFilters::apply() const
{
    for (Texture* texture : Library::getInstance()->getAll<Texture>()) {
        texture->setFilter(linearMagnification ? GL_LINEAR : GL_NEAREST,
            kMinification[linearMagnification][minificationMode]);
    }
}
