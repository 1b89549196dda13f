#include "app/DebugGamestate.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "app/QKD_Game.h"
#include "assets/Library.h"
#include "base/FrameTimer.h"
#include "base/Logger.h"
#include "platform/AppWindow.h"
#include "render/Renderer.h"
#include "scene/Node.h"
#include "scene/SceneGraph.h"
#include "scene/Transforms.h"

#include <GLFW/glfw3.h>

namespace {

Node* createCameraNode(QKD_Game& game)
{
    Node* node = new Node("CameraNode");
    game.getScene().getRoot()->addChild(node);
    node->transform(rotation(180, glm::vec3(0, 1, 0)), true);
    node->transform(rotation(-15, glm::vec3(1, 0, 0)), true);
    node->transform(translation(glm::vec3(0, 5, -15)), false);
    return node;
}

} // namespace

DebugGamestate::DebugGamestate(const std::string& stateName, QKD_Game& ownGame)
    : IGameState(stateName), game(ownGame), window(ownGame.getCore()->getRenderer()->getWindow()),
      cameraNode(createCameraNode(ownGame)), view(ownGame.getWindowRect(), *cameraNode), flight(*cameraNode)
{
}

void DebugGamestate::enter()
{
    logLine(2) << "Enter TestState1" << std::endl;
    layOut();
    window.captureCursor(true);
    flight.start(mouse()); // a mouse that moved since the last visit does not make the view jump
}

FreeFlight::Mouse DebugGamestate::mouse() const
{
    const AppWindow::Position position = game.getOutside().readMouse(window);
    return {position.x, position.y};
}

void DebugGamestate::layOut()
{
    view.getViewport()->setRect(game.getWindowRect());
    game.getCore()->getRenderer()->setViewports({view.getViewport()});
}

void DebugGamestate::leave()
{
    logLine(2) << "Leave TestState1" << std::endl;
    window.captureCursor(false);
}

void DebugGamestate::update()
{
    if (isKeyDown(GLFW_KEY_F5)) Library::getInstance()->loadShader("WireframeShader", "Shader/WireframeShader.shader");
    if (isKeyDown(GLFW_KEY_F3)) logLine(2) << "FPS: " << 1 / FrameTimer::getInstance()->getDelta() << std::endl;
    flight.update(mouse(), gameDelta());
    if (isKeyDown(GLFW_KEY_F11)) game.getCore()->getStateManager()->changeState("PlayGamestate");
    if (isKeyDown(GLFW_KEY_ESCAPE)) game.quit();
}
