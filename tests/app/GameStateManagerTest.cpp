#include "app/GameStateManager.h"
#include "app/TestState2.h"
#include "support/DataCapturedLog.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::vector<std::string> calls;

class LoggingState : public IGameState {
public:
    LoggingState(const std::string& stateName, std::string callName) : IGameState(stateName), call(std::move(callName)) {}
    explicit LoggingState(const std::string& stateName) : LoggingState(stateName, stateName) {}

    void enter() override { calls.push_back("enter " + call); }
    void leave() override { calls.push_back("leave " + call); }
    void update() override {}
    void renderCamera(Camera*) override {}

private:
    std::string call;
};

class StateManager : public testing::Test {
protected:
    StateManager() { calls.clear(); }

    using Calls = std::vector<std::string>;
    GameStateManager manager;
    LoggingState a{"a"}, b{"b"};
};

TEST_F(StateManager, ChangesLeaveTheOldStateAndEnterTheNewOne)
{
    manager.addState(&a);
    manager.addState(&b);
    EXPECT_EQ(manager.getCurrentState(), nullptr);

    manager.changeState("a");
    EXPECT_EQ(calls, Calls({"enter a"}));
    manager.changeState("b");
    EXPECT_EQ(calls, Calls({"enter a", "leave a", "enter b"}));
    manager.changeState("b");
    EXPECT_EQ(calls.size(), 3u) << "the current state is not entered again";
    EXPECT_EQ(manager.getCurrentState(), &b);
}

TEST_F(StateManager, ASecondStateOfOneNameReplacesTheFirstSilently)
{
    LoggingState other("a", "other");
    manager.addState(&a);
    manager.addState(&other);
    EXPECT_TRUE(calls.empty());
    manager.changeState("a");
    EXPECT_EQ(calls, Calls({"enter other"}));
}

TEST_F(StateManager, TheTestStateSaysOnlyThatItComesAndGoes)
{
    CapturedLog log;
    TestState2 test("test");
    manager.addState(&test);
    manager.addState(&a);
    manager.changeState("test");
    manager.getCurrentState()->update();
    manager.getCurrentState()->renderCamera(nullptr);
    manager.getCurrentState()->drawText(nullptr);
    manager.changeState("a");
    EXPECT_EQ(log.text(), "DEBUG | Enter TestState2\nDEBUG | Leave TestState2\n");
}

TEST_F(StateManager, AnUnknownNameStopsTheProgram)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    manager.addState(&a);
    EXPECT_DEATH(manager.changeState("nowhere"), "newstate != nullptr");
}

} // namespace
