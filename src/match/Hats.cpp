#include "match/Hats.h"

#include "physics/PhysicNode.h"
#include "players/Player.h"
#include "scene/Transforms.h"

#include <cmath>
#include <string>

namespace {

constexpr double kBobPeriod = 450.0; // milliseconds for one radian of the bobbing

/// From the hat's lying-down modelling to the top of a duck's head, in the frame of the chassis.
glm::mat4 seat()
{
    const glm::vec3 xAxis(1, 0, 0);
    return glm::scale(glm::mat4(1.0f), glm::vec3(0.5f)) * rotation(90, xAxis) *
        translation(glm::vec3(-0.1f, 1, -7.3f)) * rotation(-180, xAxis);
}

} // namespace

Hats::Hats()
{
    for (std::size_t place = 0; place < kCount; ++place) {
        const std::string name = "hat" + std::to_string(place + 1);
        hats[place] = new Node(name);
        animations[place] = new Node(name + "anim");
        hats[place]->addChild(animations[place]);
        hats[place]->transform(seat(), true);
    }
}

void Hats::give(int place, const Player& player)
{
    getNode(place)->setParent(player.getChassisNode());
}

void Hats::bob(double milliseconds)
{
    const auto height = static_cast<float>(std::sin(milliseconds / kBobPeriod));
    for (Node* node : animations) node->setTransform(translation(glm::vec3(0, 0, height)));
}
