#include "scene/SceneGraph.h"

SceneGraph::SceneGraph() : root(new Node("root")) {}

void SceneGraph::update()
{
    root->update();
}

void SceneGraph::accept(INodeVisitor* visitor)
{
    root->accept(visitor);
}

void SceneGraph::acceptRelease(INodeVisitor* visitor)
{
    root->acceptRelease(visitor);
}
