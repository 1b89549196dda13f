#pragma once

/// Is told after each step of a frame that the calls of that step were issued, so that a benchmark can measure them.
class IFrameProbe {
public:
    virtual ~IFrameProbe() = default;

    /// step: "scene update", "shadow pass", "model passes", "text", "Blur", "CelPostProc" or "swap".
    virtual void stepDone(const char* step) = 0;
};
