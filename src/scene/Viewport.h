#pragma once

#include <glm/glm.hpp>

class Camera;

/// One rectangle of the window and the camera drawn into it: plain data, which the renderer applies. Owned by an actor
/// or a game state.
class Viewport {
public:
    struct Rect {
        int x = 0, y = 0;          ///< pixels from the window's lower-left corner
        int width = 0, height = 0; ///< pixels

        bool operator==(const Rect&) const = default;
    };

    Viewport(int x, int y, int width, int height) : rect{x, y, width, height} {}

    void setRect(const Rect& newRect) { rect = newRect; }
    const Rect& getRect() const { return rect; }

    Camera* camera = nullptr;
    glm::vec4 clearColour{0.0f}; ///< red, green, blue, alpha
private:
    Rect rect;
};
