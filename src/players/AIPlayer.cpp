#include "players/AIPlayer.h"

#include "players/IMatch.h"

AIPlayer::AIPlayer(IMatch& ownMatch, IStage& ownStage)
    : AIControllerHolder(ownMatch.getComputerPlayerCount()), Player(ownMatch, ownStage, controller)
{
    controller.take(*this, ownMatch);
}

void AIPlayer::setUp()
{
    computerIndex = match.getComputerPlayerCount();
    Player::setUp();
}

glm::vec4 AIPlayer::getColor() const
{
    const float grey = static_cast<float>(10 - computerIndex) / 10;
    return {grey, grey, grey, 0};
}
