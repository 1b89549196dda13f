#pragma once

#include "scene/Node.h"

/// The world: owns the root node, named "root". The renderer updates and walks it every frame.
class SceneGraph {
public:
    Node* getRoot() const { return root; }

    void update() { root->update(); } ///< recompute every world transform below the root, parents first
    void accept(INodeVisitor* visitor) { root->accept(visitor); }
    void acceptRelease(INodeVisitor* visitor) { root->acceptRelease(visitor); }

private:
    Node* root = new Node("root");
};
