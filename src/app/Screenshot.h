#pragma once

#include "render/FrameProbe.h"

class Renderer;

/// Saves frames among the user's pictures, in the folder Quackdash, under the date and time, and says in the log where,
/// or why not. The renderer is borrowed.
class Screenshot final : public IFrameProbe {
public:
    explicit Screenshot(Renderer& ownRenderer) : renderer(ownRenderer) {}

    void takeNext(); ///< save the next frame, in place of any other probe

    void stepDone(const char* step) override;

private:
    Renderer& renderer;
};
