#pragma once

#include "render/CulledText.h"
#include "scene/Viewport.h"

#include <memory>
#include <string>

class Renderer;
struct PlayerLabel;
struct TextOptions;

/// Where the players' text is written. One for the whole run, made by the options; owned by the presentation.
class PlayerLabels {
public:
    virtual ~PlayerLabels() = default;

    /// Write what a player is told, for this frame. view in pixels.
    virtual void write(const PlayerLabel& label, const Viewport::Rect& view) = 0;

    /// Write a car's sign above the place, in world space, if the view shows it whole and no other text is there.
    virtual void writeSign(const std::string& sign, const glm::vec3& place, const Viewport& view) = 0;
};

/// Return what writes how many models a view leaves out, or nothing to write none. The renderer is borrowed.
CulledText makeCulledText(Renderer& renderer, const TextOptions& options);

/// The renderer is borrowed.
std::unique_ptr<PlayerLabels> makePlayerLabels(Renderer& renderer, const TextOptions& options);
