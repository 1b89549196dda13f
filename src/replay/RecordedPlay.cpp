#include "replay/RecordedPlay.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "app/QKD_Game.h"
#include "replay/StateNames.h"

AppWindow::Position RecordedPlay::readMouse(const AppWindow& window)
{
    const AppWindow::Position position = Outside::readMouse(window);
    recorder.noteMouse(position.x, position.y);
    return position;
}

void RecordedPlay::passBegins(QKD_Game& game)
{
    recorder.beginPass(stateNamed(game.getCore()->getStateManager()->getCurrentState()->getName()));
}

void RecordedPlay::passEnds(QKD_Game& game)
{
    recorder.endPass(game.getMatch());
}
