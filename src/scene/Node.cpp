#include "scene/Node.h"

#include "base/Logger.h"
#include "scene/Attachable.h"
#include "scene/INodeVisitor.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t kBlockBytes = std::size_t{64} * 1024;

} // namespace

void* Node::operator new(std::size_t bytes)
{
    static std::byte* free = nullptr;
    static std::size_t left = 0;

    constexpr std::size_t kAlignment = alignof(std::max_align_t);
    const std::size_t size = (bytes + kAlignment - 1) / kAlignment * kAlignment;
    if (left < size) {
        left = std::max(size, kBlockBytes);
        free = new std::byte[left];
    }
    left -= size;
    return std::exchange(free, free + size);
}

Node::Node(std::string nodeName) : name(std::move(nodeName)) {}

Node* Node::createChild(const std::string& childName)
{
    logLine(2) << "Creating child: " << childName << std::endl;
    Node* child = new Node(childName);
    addChild(child);
    return child;
}

void Node::addChild(Node* child)
{
    if (std::find(children.begin(), children.end(), child) != children.end()) return;
    child->parent = this;
    children.push_back(child);
}

void Node::removeChild(Node* child)
{
    const auto found = std::find(children.begin(), children.end(), child);
    if (found == children.end()) return;
    if (child->parent == this) child->parent = nullptr; // it may have been added elsewhere since
    children.erase(found);
}

void Node::setParent(Node* newParent)
{
    if (parent) parent->removeChild(this);
    newParent->addChild(this);
}

void Node::attach(Attachable* attachable)
{
    attachable->setNode(this);
    attachments.push_back(attachable);
}

void Node::transform(const glm::mat4& matrix, bool post)
{
    local = post ? local * matrix : matrix * local;
}

Node* Node::find(const std::string& wanted)
{
    if (name == wanted) return this;
    for (Node* child : children) {
        if (Node* found = child->find(wanted)) return found;
    }
    return nullptr;
}

void Node::updateTransform()
{
    world = parent ? parent->world * local : glm::mat4(1.0f);
    for (Attachable* attachable : attachments) attachable->update();
}

void Node::destroy()
{
    // Each child goes by its own destroy(), which may be a physics node's, and takes itself out of the sequence.
    for (Node* child : std::vector<Node*>(children)) child->destroy();
    children.clear();
    if (parent) parent->removeChild(this);
}

void Node::update()
{
    for (Node* child : children) {
        child->updateTransform();
        child->update();
    }
}

void Node::accept(INodeVisitor* visitor)
{
    visitor->visitNode(this);
    for (Attachable* attachable : attachments) attachable->accept(visitor);
    for (Node* child : children) child->accept(visitor);
}

void Node::acceptRelease(INodeVisitor* visitor)
{
    visitor->releaseNode(this);
    for (Attachable* attachable : attachments) attachable->acceptRelease(visitor);
    for (Node* child : children) child->acceptRelease(visitor);
}
