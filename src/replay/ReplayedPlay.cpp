#include "replay/ReplayedPlay.h"

#include "app/Core.h"
#include "app/GameStateManager.h"
#include "app/QKD_Game.h"
#include "base/Logger.h"
#include "replay/StateNames.h"

void ReplayedPlay::passBegins(QKD_Game& game)
{
    game.getCore()->getStateManager()->changeState(nameOf(source.getPass().state()));
}

void ReplayedPlay::passEnds(QKD_Game& game)
{
    if (!source.getPass().has_sample()) return;
    const bool agreedSoFar = comparison.getDifferent() == 0;
    comparison.check(source.getPassNumber(), source.getPass().sample(), game.getMatch());
    if (agreedSoFar && comparison.getDifferent() > 0)
        logLine(1) << "The match differs from its recording in " << comparison.getFirst() << std::endl;
}
