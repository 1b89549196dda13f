#pragma once

#include "scene/INodeVisitor.h"

#include <set>

/// A visitor that collects the models of the scene, each once. The walk only adds; releaseModel withdraws one. Models
/// are borrowed.
class ModelRegistry : public INodeVisitor {
public:
    void visitModel(Model* model) override { registry.insert(model); }
    void visitCamera(Camera*) override {}
    void visitAttachable(Attachable*) override {}
    void visitNode(Node*) override {}
    void releaseModel(Model* model) override { registry.erase(model); }
    void releaseCamera(Camera*) override {}
    void releaseAttachable(Attachable*) override {}
    void releaseNode(Node*) override {}

protected:
    ~ModelRegistry() = default;

    std::set<Model*> registry;
};
