#pragma once

#include "scene/INodeVisitor.h"

/// Something that hangs on a scene node: a model, a camera, a particle system. Owned by whoever created it; the node
/// only borrows it.
class Attachable {
public:
    /// Follow the node. Called once per scene update, after the owning node's world transform is current.
    virtual void update() = 0;

    virtual void accept(INodeVisitor* visitor) { visitor->visitAttachable(this); }
    virtual void acceptRelease(INodeVisitor* visitor) { visitor->releaseAttachable(this); }

    Node* getNode() const { return node; } ///< null until attached
    void setNode(Node* newNode) { node = newNode; }

protected:
    ~Attachable() = default;

private:
    Node* node = nullptr;
};
