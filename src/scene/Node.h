#pragma once

#include <boost/container/small_vector.hpp>
#include <glm/glm.hpp>

#include <cstddef>
#include <string>
#include <vector>

class Attachable;
class INodeVisitor;

/// A frame of reference in the scene tree: world = parent's world x local, column vectors.
///
/// Nodes are created detached or by createChild, live until the process ends, and are never freed: destroy() only takes
/// them out of the tree. World transforms are as fresh as the last SceneGraph::update.
class Node {
public:
    Node() = default;
    explicit Node(std::string nodeName);

    /// Take memory that nodes have to themselves: thousands of them, scattered among what is freed again, would break
    /// the heap to pieces.
    static void* operator new(std::size_t bytes);
    static void operator delete(void*) {}

    /// Create a node of that name as the last child and log it at level 2.
    Node* createChild(const std::string& childName);

    void addChild(Node* child);      ///< do nothing when it is among the children already
    void removeChild(Node* child);   ///< do nothing when it is no child
    void setParent(Node* newParent); ///< leave the old parent and become the new one's last child

    Node* getParent() const { return parent; }
    const std::vector<Node*>& getChildren() const { return children; }
    std::string getName() const { return name; }
    void setName(const std::string& newName) { name = newName; }

    /// Hang an attachment (borrowed) on this node. No check for duplicates.
    void attach(Attachable* attachable);

    void setTransform(const glm::mat4& matrix) { local = matrix; }

    /// Multiply the local transform: local x matrix if post (the node's own frame), else matrix x local (the parent's).
    void transform(const glm::mat4& matrix, bool post);

    glm::mat4 getWorldTransform() const { return world; }
    glm::vec3 getWorldPosition() const { return glm::vec3(world[3]); }

    /// Return this node or the first descendant of that name, depth first; null when there is none.
    Node* find(const std::string& wanted);

    /// Recompute world (identity without a parent), then update the attachments in order.
    virtual void updateTransform();

    /// Take the whole subtree out of the tree, children first. Nothing is freed.
    virtual void destroy();

    void update();                             ///< call updateTransform and update of every child; not of this node
    void accept(INodeVisitor* visitor);        ///< show it this node, its attachments, its children
    void acceptRelease(INodeVisitor* visitor); ///< do likewise, with the release operations

protected:
    ~Node() = default;

private:
    glm::mat4 local{1.0f};
    glm::mat4 world{1.0f};
    std::string name;
    boost::container::small_vector<Attachable*, 2> attachments; // mostly within the node
    std::vector<Node*> children;
    Node* parent = nullptr;
};
