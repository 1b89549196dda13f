#include "scene/Attachable.h"
#include "scene/Camera.h"
#include "scene/SceneGraph.h"
#include "support/Near.h"

#include <gtest/gtest.h>

#include <glm/gtc/matrix_transform.hpp>

#include <string>
#include <vector>

namespace {

const glm::mat4 kIdentity(1.0f);

glm::mat4 moved(float x, float y, float z)
{
    return glm::translate(kIdentity, {x, y, z});
}

/// Writes down what happens to it, and where its node was then.
class Witness : public Attachable {
public:
    explicit Witness(std::string witnessName = "") : name(std::move(witnessName)) {}
    void update() override { seenAt.push_back(getNode()->getWorldPosition()); }

    const std::string name;
    std::vector<glm::vec3> seenAt;
};

/// Writes down the walk through a tree as names in the order of the calls; released ones carry a minus.
class WalkLog : public INodeVisitor {
public:
    void visitModel(Model*) override { log.emplace_back("model"); }
    void visitCamera(Camera*) override { log.emplace_back("camera"); }
    void visitAttachable(Attachable* attachable) override { log.push_back(static_cast<Witness*>(attachable)->name); }
    void visitNode(Node* node) override { log.push_back(node->getName()); }
    void releaseModel(Model*) override { log.emplace_back("-model"); }
    void releaseCamera(Camera*) override { log.emplace_back("-camera"); }
    void releaseAttachable(Attachable* attachable) override { log.push_back("-" + static_cast<Witness*>(attachable)->name); }
    void releaseNode(Node* node) override { log.push_back("-" + node->getName()); }

    std::vector<std::string> log;
};

/// The scene tree of a test. Nodes stay allocated, as in the game.
class NodeTest : public testing::Test {
protected:
    SceneGraph scene;
    Node& root = *scene.getRoot();
};

TEST_F(NodeTest, WorldTransformsComposeFromTheRootDown)
{
    Node& arm = *root.createChild("arm");
    Node& hand = *arm.createChild("hand");
    arm.setTransform(moved(10, 0, 0) * glm::rotate(kIdentity, glm::radians(90.0f), {0, 1, 0}));
    hand.setTransform(moved(0, 2, 3));

    EXPECT_TRUE(isNear(hand.getWorldPosition(), {0, 0, 0})) << "world transforms are as fresh as the last update";
    scene.update();
    EXPECT_TRUE(isNear(hand.getWorldPosition(), {13, 2, 0})) << "the parent's quarter turn takes the child's z to x";
}

TEST_F(NodeTest, AnUpdateLeavesTheRootAndItsAttachmentsAlone)
{
    Witness onRoot, onChild;
    Node& child = *root.createChild("child");
    root.setTransform(moved(100, 0, 0));
    root.attach(&onRoot);
    child.setTransform(moved(1, 2, 3));
    child.attach(&onChild);

    scene.update();
    EXPECT_TRUE(isNear(root.getWorldTransform(), kIdentity));
    EXPECT_TRUE(isNear(child.getWorldTransform(), moved(1, 2, 3)));
    EXPECT_TRUE(onRoot.seenAt.empty());
    ASSERT_EQ(onChild.seenAt.size(), 1u);
    EXPECT_TRUE(isNear(onChild.seenAt[0], {1, 2, 3})) << "attachments are updated after their node";
}

TEST_F(NodeTest, TransformMultipliesInTheParentsFrameOrInItsOwn)
{
    const glm::mat4 old = moved(1, 0, 0), t = moved(0, 2, 0), r = glm::rotate(kIdentity, glm::radians(30.0f), {0, 0, 1});
    Node& inParentsFrame = *root.createChild("a");
    Node& inOwnFrame = *root.createChild("b");
    for (Node* node : {&inParentsFrame, &inOwnFrame}) {
        node->setTransform(old);
        node->transform(t, node == &inOwnFrame);
        node->transform(r, node == &inOwnFrame);
    }
    scene.update();
    EXPECT_TRUE(isNear(inParentsFrame.getWorldTransform(), r * t * old));
    EXPECT_TRUE(isNear(inOwnFrame.getWorldTransform(), old * t * r));
}

TEST_F(NodeTest, FindReturnsTheFirstOfThatNameInPreOrder)
{
    Node& left = *root.createChild("left");
    Node& right = *root.createChild("right");
    Node& deepLeft = *left.createChild("left below")->createChild("hat");
    Node& shallowRight = *right.createChild("hat");
    Node& inner = *right.createChild("right");

    EXPECT_EQ(root.find("hat"), &deepLeft) << "the earlier branch wins over the shallower one";
    EXPECT_EQ(right.find("hat"), &shallowRight);
    EXPECT_EQ(root.find("right"), &right) << "a node is met before what lies below it";
    EXPECT_EQ(inner.find("hat"), nullptr);
    EXPECT_EQ(root.find("root"), &root);
}

TEST_F(NodeTest, VisitorsSeeNodeThenAttachmentsThenChildren)
{
    Witness a("A"), b("B");
    Camera camera(45, 1, 0.1f, 100, {});
    root.attach(&a);
    Node& first = *root.createChild("C1");
    first.attach(&b);
    first.attach(&camera);
    root.createChild("C2");

    WalkLog walk;
    scene.accept(&walk);
    EXPECT_EQ(walk.log, (std::vector<std::string>{"root", "A", "C1", "B", "camera", "C2"}));
    walk.log.clear();
    scene.acceptRelease(&walk);
    EXPECT_EQ(walk.log, (std::vector<std::string>{"-root", "-A", "-C1", "-B", "-camera", "-C2"}));
}

TEST_F(NodeTest, SetParentMovesANodeToTheEndOfTheNewParentsChildren)
{
    Node& p = *root.createChild("p");
    Node& q = *root.createChild("q");
    Node& node = *p.createChild("node");
    q.createChild("other");

    node.setParent(&q);
    EXPECT_TRUE(p.getChildren().empty());
    EXPECT_EQ(q.getChildren().back(), &node);
    EXPECT_EQ(node.getParent(), &q);

    q.addChild(&node);
    EXPECT_EQ(q.getChildren().size(), 2u) << "a child is added once";
    p.removeChild(&node);
    EXPECT_EQ(node.getParent(), &q) << "only a parent gives a child away";
}

TEST_F(NodeTest, DestroyTakesAWholeSubtreeOut)
{
    Node& car = *root.createChild("car");
    Node& duck = *car.createChild("duck");
    Node& hat = *duck.createChild("hat");
    Node& wheel = *car.createChild("wheel");
    Witness witness;
    hat.attach(&witness);

    car.destroy();
    EXPECT_TRUE(root.getChildren().empty());
    for (Node* node : {&car, &duck, &hat, &wheel}) {
        EXPECT_TRUE(node->getChildren().empty()) << node->getName();
        EXPECT_EQ(node->getParent(), nullptr) << node->getName();
    }
    EXPECT_EQ(witness.getNode(), &hat);

    scene.update();
    EXPECT_TRUE(witness.seenAt.empty()) << "an update no longer reaches it";
}

/// A node that leaves something else too when it is destroyed, as physics nodes do.
class LeavingNode : public Node {
public:
    void destroy() override
    {
        left = true;
        Node::destroy();
    }
    bool left = false;
};

TEST_F(NodeTest, DestroyReachesChildrenThroughTheirOwnOperation)
{
    Node& shot = *root.createChild("shot");
    LeavingNode body, second;
    shot.addChild(&body);
    shot.addChild(&second);
    root.destroy();
    EXPECT_TRUE(body.left && second.left) << "children that leave during the walk must not make it skip their neighbours";
}

TEST_F(NodeTest, ANodeWithTwoParentsDoesNotStopADestroy)
{
    Node& first = *root.createChild("first");
    Node& second = *root.createChild("second");
    Node& shared = *first.createChild("shared");
    second.addChild(&shared);

    first.removeChild(&shared);
    EXPECT_EQ(shared.getParent(), &second) << "the former parent takes nothing from the present one";
    first.addChild(&shared);
    second.destroy();
    EXPECT_TRUE(second.getChildren().empty());
}

} // namespace
