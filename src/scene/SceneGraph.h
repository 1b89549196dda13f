#pragma once

#include "scene/Node.h"

/// The world: owns the root node, named "root". The renderer updates and walks it every frame.
class SceneGraph {
public:
    SceneGraph();

    Node* getRoot() const { return root; }

    void update(); ///< recomputes every world transform below the root, parents first
    void accept(INodeVisitor* visitor);
    void acceptRelease(INodeVisitor* visitor);

private:
    Node* root;
};
