#include "scene/Attachable.h"
#include "scene/SceneGraph.h"
#include "scene/Transforms.h"
#include "testing/Near.h"

#include <gtest/gtest.h>

namespace {

/// Writes down where its node was whenever it was updated.
class Witness : public Attachable {
public:
    void update() override { seenAt.push_back(getNode()->getWorldPosition()); }

    std::vector<glm::vec3> seenAt;
};

TEST(NodeTest, AnUpdateComposesFromTheRootDownAndLeavesTheRootAlone)
{
    SceneGraph scene;
    Node &root = *scene.getRoot(), &arm = *root.createChild("arm"), &hand = *arm.createChild("hand");
    Witness onRoot, onHand;
    root.attach(&onRoot);
    hand.attach(&onHand);
    root.setTransform(translation({100, 0, 0}));
    arm.transform(rotation(90, {0, 1, 0}), true);
    arm.transform(translation({9, 0, 0}), false); // in the parent's frame
    arm.transform(translation({0, 0, 1}), true);  // in its own
    hand.setTransform(translation({0, 2, 3}));

    scene.update();
    EXPECT_TRUE(isNear(hand.getWorldPosition(), {13, 2, 0})) << "the parent's quarter turn takes the child's z to x";
    EXPECT_EQ(onHand.seenAt, std::vector{hand.getWorldPosition()}) << "attachments are updated after their node";
    EXPECT_EQ(root.getWorldPosition(), glm::vec3(0));
    EXPECT_TRUE(onRoot.seenAt.empty());
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

TEST(NodeTest, MovesToAnotherParentAndLeavesTheTreeWithItsWholeSubtree)
{
    SceneGraph scene;
    Node &root = *scene.getRoot(), &car = *root.createChild("car"), &duck = *car.createChild("duck");
    LeavingNode body, hat;
    Witness witness;
    hat.attach(&witness);
    root.addChild(&body);
    body.setParent(&duck);
    for (int i = 0; i < 2; ++i) duck.addChild(&hat);
    EXPECT_EQ(root.getChildren(), std::vector{&car});
    EXPECT_EQ(duck.getChildren(), (std::vector<Node*>{&body, &hat})) << "a child is added once";

    root.addChild(&hat);
    duck.removeChild(&hat);
    EXPECT_EQ(hat.getParent(), &root) << "the former parent takes nothing from the present one";
    hat.setParent(&duck);
    car.addChild(&body); // a mere addition leaves it with the duck, too
    car.destroy();
    EXPECT_TRUE(body.left && hat.left) << "children that leave during the walk must not make it skip their neighbours";
    for (Node* node : std::initializer_list<Node*>{&car, &duck, &body, &hat}) EXPECT_EQ(node->getParent(), nullptr);
    for (Node* node : {&root, &car, &duck}) EXPECT_TRUE(node->getChildren().empty());
    scene.update();
    EXPECT_TRUE(witness.seenAt.empty()) << "an update no longer reaches it";
}

} // namespace
