#include "render/Framebuffer.h"

#include <cstdio>

namespace {

void checkComplete()
{
    const GLenum status = glCheckFramebufferStatus(GL_FRAMEBUFFER);
    if (status == GL_FRAMEBUFFER_COMPLETE) return;
    std::fprintf(stderr, "glCheckFramebufferStatus: error %#x", status);
}

} // namespace

Framebuffer::Framebuffer(const TargetTexture* colour, const TargetTexture* depth)
{
    bind();
    if (depth) glFramebufferTexture(GL_FRAMEBUFFER, GL_DEPTH_ATTACHMENT, depth->getHandle(), 0);
    if (colour) {
        glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, colour->getHandle(), 0);
    } else {
        glDrawBuffer(GL_NONE);
        glReadBuffer(GL_NONE);
    }
    checkComplete();
    glBindFramebuffer(GL_FRAMEBUFFER, 0);
}
