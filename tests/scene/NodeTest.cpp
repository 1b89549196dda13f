#include "scene/Attachable.h"
#include "scene/SceneGraph.h"
#include "testing/Near.h"

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

/// Writes down where its node was whenever it was updated.
class Witness : public Attachable {
public:
    void update() override { seenAt.push_back(getNode()->getWorldPosition()); }

    std::vector<glm::vec3> seenAt;
};

/// The scene tree of a test. Nodes stay allocated, as in the game.
class NodeTest : public testing::Test {
protected:
    SceneGraph scene;
    Node& root = *scene.getRoot();
};

TEST_F(NodeTest, AnUpdateComposesFromTheRootDownAndLeavesTheRootAlone)
{
    Witness onRoot, onHand;
    Node& arm = *root.createChild("arm");
    Node& hand = *arm.createChild("hand");
    root.setTransform(moved(100, 0, 0));
    arm.transform(glm::rotate(kIdentity, glm::radians(90.0f), {0, 1, 0}), true);
    arm.transform(moved(9, 0, 0), false); // in the parent's frame
    arm.transform(moved(0, 0, 1), true);  // in its own
    hand.setTransform(moved(0, 2, 3));
    root.attach(&onRoot);
    hand.attach(&onHand);

    EXPECT_TRUE(isNear(hand.getWorldPosition(), {0, 0, 0})) << "world transforms are as fresh as the last update";
    scene.update();
    EXPECT_TRUE(isNear(hand.getWorldPosition(), {13, 2, 0})) << "the parent's quarter turn takes the child's z to x";
    EXPECT_TRUE(isNear(root.getWorldTransform(), kIdentity));
    EXPECT_TRUE(onRoot.seenAt.empty());
    ASSERT_EQ(onHand.seenAt.size(), 1u);
    EXPECT_TRUE(isNear(onHand.seenAt[0], {13, 2, 0})) << "attachments are updated after their node";
}

TEST_F(NodeTest, FindReturnsTheFirstOfThatNameInPreOrder)
{
    Node& left = *root.createChild("left");
    Node& right = *root.createChild("right");
    Node& deepLeft = *left.createChild("left below")->createChild("hat");
    right.createChild("hat");
    Node& inner = *right.createChild("right");

    EXPECT_EQ(root.find("hat"), &deepLeft) << "the earlier branch wins over the shallower one";
    EXPECT_EQ(root.find("right"), &right) << "a node is met before what lies below it";
    EXPECT_EQ(inner.find("hat"), nullptr);
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

TEST_F(NodeTest, DestroyTakesAWholeSubtreeOutEachByItsOwnOperation)
{
    Node& car = *root.createChild("car");
    Node& duck = *car.createChild("duck");
    LeavingNode body, second;
    duck.addChild(&body);
    duck.addChild(&second);
    Witness witness;
    body.attach(&witness);

    car.destroy();
    EXPECT_TRUE(body.left && second.left)
        << "children that leave during the walk must not make it skip their neighbours";
    EXPECT_TRUE(root.getChildren().empty());
    for (Node* node : std::initializer_list<Node*>{&car, &duck, &body, &second}) {
        EXPECT_TRUE(node->getChildren().empty());
        EXPECT_EQ(node->getParent(), nullptr);
    }
    scene.update();
    EXPECT_TRUE(witness.seenAt.empty()) << "an update no longer reaches it";
}

TEST_F(NodeTest, ANewParentTakesANodeFromTheOldOneButAMereAdditionDoesNot)
{
    Node& p = *root.createChild("p");
    Node& q = *root.createChild("q");
    Node& node = *p.createChild("node");
    q.createChild("other");

    node.setParent(&q);
    EXPECT_TRUE(p.getChildren().empty());
    EXPECT_EQ(q.getChildren().back(), &node);
    q.addChild(&node);
    EXPECT_EQ(q.getChildren().size(), 2u) << "a child is added once";

    p.addChild(&node);
    q.removeChild(&node);
    EXPECT_EQ(node.getParent(), &p) << "the former parent takes nothing from the present one";
    q.addChild(&node);
    p.destroy();
    EXPECT_TRUE(p.getChildren().empty());
}

TEST_F(NodeTest, ThousandsLieCloseTogetherAndNoneOverAnother)
{
    std::vector<Node*> nodes;
    std::vector<std::vector<char>> between; // what a frame takes from the heap meanwhile
    for (int i = 0; i < 2000; ++i) {
        nodes.push_back(new Node(std::to_string(i)));
        root.addChild(nodes.back());
        nodes.back()->setTransform(moved(static_cast<float>(i), 0, 0));
        between.emplace_back(4096);
    }
    scene.update();
    int apart = 0;
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        EXPECT_EQ(nodes[i]->getName(), std::to_string(i));
        EXPECT_EQ(nodes[i]->getWorldPosition().x, static_cast<float>(i));
        apart += i > 0 && nodes[i] != nodes[i - 1] + 1;
    }
    EXPECT_LT(apart, 20) << "blocks that were begun";
}

} // namespace
