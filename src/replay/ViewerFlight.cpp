#include "replay/ViewerFlight.h"

#include "app/QKD_Game.h"
#include "base/FrameTimer.h"
#include "platform/AppWindow.h"
#include "scene/Node.h"
#include "scene/SceneGraph.h"
#include "scene/Transforms.h"

namespace {

/// From the field's edge, over its middle.
glm::mat4 firstPose()
{
    return translation(glm::vec3(0, 70, 130)) * rotation(-15, glm::vec3(1, 0, 0));
}

} // namespace

ViewerFlight::ViewerFlight(QKD_Game& game, AppWindow& ownWindow)
    : window(ownWindow), node(*game.getScene().getRoot()->createChild("ViewerCamera")),
      view(game.getWindowRect(), node), steering(node)
{
    node.setTransform(firstPose());
}

void ViewerFlight::setFlying(bool on)
{
    if (on == flying) return;
    flying = on;
    window.captureCursor(on);
    if (on) steering.start(mouse());
}

void ViewerFlight::update(float seconds)
{
    IKeyboard& recorded = keyboard();
    setKeyboard(&window); // the viewer's keys steer
    steering.update(mouse(), seconds * kGameTimeScale);
    setKeyboard(&recorded);
}

glm::mat4 ViewerFlight::getPose() const
{
    return node.getWorldTransform();
}

void ViewerFlight::setPose(const glm::mat4& pose)
{
    node.setTransform(pose);
}

FreeFlight::Mouse ViewerFlight::mouse() const
{
    const AppWindow::Position position = window.mousePosition();
    return {position.x, position.y};
}
