#pragma once

class Node;

/// The flight of a node by keyboard and mouse: W, A, S, D move it in its own frame (ten times as fast with the left
/// Shift key), the arrow keys or the mouse turn it. The node is borrowed and keeps its pose between flights.
class FreeFlight {
public:
    struct Mouse {
        int x = 0, y = 0; ///< pixels
    };

    explicit FreeFlight(Node& flownNode) : node(flownNode) {}

    /// Take in where the mouse is before the first update: only its movement from there on turns the node.
    void start(Mouse mouse) { lastMouse = mouse; }

    /// Fly for one frame of so many seconds of game time.
    void update(Mouse mouse, float seconds);

private:
    Node& node;
    Mouse lastMouse;
};
