#pragma once

/// Hears after each step of a frame that the step's calls were issued: a benchmark measures between two of them.
class IFrameProbe {
public:
    virtual ~IFrameProbe() = default;

    /// step: "scene update", "shadow pass", "model passes", "text", "Blur", "CelPostProc" or "swap".
    virtual void stepDone(const char* step) = 0;
};
