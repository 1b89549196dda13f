#pragma once

#include "render/FrameProbe.h"
#include "testing/Picture.h"

/// Keeps the picture of the last frame that was drawn into a window of 1024 x 768. To be given to the renderer.
class FrameRecorder : public IFrameProbe {
public:
    void stepDone(const char* step) override;

    const Picture& getPicture() const { return picture; }

private:
    Picture picture;
};
