#include "app/GameStateManager.h"
#include "base/IGameState.h"

#include <gtest/gtest.h>

namespace {

std::string calls;

class LoggingState : public IGameState {
public:
    LoggingState(const std::string& stateName, std::string callName) : IGameState(stateName), call(std::move(callName))
    {
    }

    void enter() override { calls += "enter " + call + ". "; }
    void leave() override { calls += "leave " + call + ". "; }
    void update() override {}
    void renderCamera(Camera*) override {}

private:
    std::string call;
};

TEST(StateManager, ChangesLeaveTheOldStateAndEnterTheNewOneByItsName)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    GameStateManager manager;
    LoggingState replaced("a", "replaced"), a("a", "a"), b("b", "b");
    for (LoggingState* state : {&replaced, &a, &b}) manager.addState(state);
    EXPECT_EQ(manager.getCurrentState(), nullptr);

    for (const char* name : {"a", "b", "b"}) manager.changeState(name);
    EXPECT_EQ(calls, "enter a. leave a. enter b. ") << "the current state is not entered again";
    EXPECT_EQ(manager.getCurrentState(), &b);
    EXPECT_DEATH(manager.changeState("nowhere"), "newstate != nullptr");
}

} // namespace
