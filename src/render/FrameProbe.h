#pragma once

/// Is told after each step of a frame that the calls of that step were issued: to measure them, or to read the frame.
class IFrameProbe {
public:
    virtual ~IFrameProbe() = default;

    /// step: "scene update", "shadow pass", "model passes", "text", "Blur", "CelPostProc", "picture" or "swap". From
    /// "picture" to "swap" the window's framebuffer holds the whole frame; in wire frame the two before are left out.
    virtual void stepDone(const char* step) = 0;
};
