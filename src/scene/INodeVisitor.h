#pragma once

class Attachable;
class Camera;
class Model;
class Node;

/// Walks the scene tree by double dispatch: the tree calls visitNode for each node, each attachment calls the operation
/// of its own kind. The release operations mirror the visits for the walk that withdraws a subtree.
class INodeVisitor {
public:
    virtual void visitModel(Model* model) = 0;
    virtual void visitCamera(Camera* camera) = 0;
    virtual void visitAttachable(Attachable* attachable) = 0;
    virtual void visitNode(Node* node) = 0;
    virtual void releaseModel(Model* model) = 0;
    virtual void releaseCamera(Camera* camera) = 0;
    virtual void releaseAttachable(Attachable* attachable) = 0;
    virtual void releaseNode(Node* node) = 0;

protected:
    ~INodeVisitor() = default;
};
