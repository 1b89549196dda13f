#include "players/AIPlayer.h"

#include "players/IMatch.h"

AIPlayer::AIPlayer(IMatch& ownMatch, IPresentation& ownPresentation)
    : AIControllerHolder(ownMatch.computerPlayerCount()), Player(ownMatch, ownPresentation, controller)
{
    controller.setPlayer(*this, ownMatch);
}

void AIPlayer::setUp()
{
    computerIndex = match.computerPlayerCount();
    Player::setUp();
}

glm::vec4 AIPlayer::getColor() const
{
    const float grey = static_cast<float>(10 - computerIndex) / 10;
    return {grey, grey, grey, 0};
}
