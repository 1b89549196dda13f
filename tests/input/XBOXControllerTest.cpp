#include "input/XBOXController.h"
#include "testing/CapturedLog.h"
#include "testing/SteppedClock.h"
#include "testing/VirtualPad.h"

#include <array>
#include <gtest/gtest.h>
#include <tuple>

namespace {

using Motors = VirtualPad::Motors;

constexpr SDL_GameControllerButton kShootButton = SDL_CONTROLLER_BUTTON_A;

class XBOXControllerTest : public testing::Test {
protected:
    XBOXControllerTest() { FrameTimer::getInstance()->tick(); }

    /// One pass of the main loop as players make it; of 8 ms at least.
    void pass(int milliseconds = 10)
    {
        clock.sleep((FrameTimer::getInstance()->getTimeMs() + milliseconds + 0.5) / 1000 - clock.now());
        FrameTimer::getInstance()->tick();
        for (XBOXController& controller : controllers) {
            if (controller.isConnected()) controller.update();
        }
    }

    /// The slots after a pass: each one's number, '*' where its pad shoots, '-' without a pad.
    std::string slots()
    {
        pass();
        std::string shown;
        for (XBOXController& controller : controllers) {
            const char number = controller.isConnected() ? controller.getName().back() : '-';
            shown += controller.isPressed(InputDevice::kShoot) ? '*' : number;
        }
        return shown;
    }

    PadLibrary library;
    SteppedClock clock;
    GamePads pads;
    std::array<XBOXController, 4> controllers{
        XBOXController{1, pads}, XBOXController{2, pads}, XBOXController{3, pads}, XBOXController{4, pads}};
    XBOXController& first = controllers[0];
    XBOXController& second = controllers[1];
};

TEST_F(XBOXControllerTest, EveryPadButtonHasItsRole)
{
    constexpr int kStart = InputDevice::kStart, kBack = 7, kNone = 8; // the last two are no button of players
    constexpr SDL_GameControllerButton kHeld[] = {SDL_CONTROLLER_BUTTON_DPAD_UP, SDL_CONTROLLER_BUTTON_DPAD_DOWN,
        SDL_CONTROLLER_BUTTON_DPAD_LEFT, SDL_CONTROLLER_BUTTON_DPAD_RIGHT, SDL_CONTROLLER_BUTTON_A,
        SDL_CONTROLLER_BUTTON_B, SDL_CONTROLLER_BUTTON_START, SDL_CONTROLLER_BUTTON_BACK, SDL_CONTROLLER_BUTTON_X};
    VirtualPad pad;
    for (int held = 0; held <= kNone; ++held) {
        SCOPED_TRACE(SDL_GameControllerGetStringForButton(kHeld[held]));
        pad.press(kHeld[held]);
        pass();
        for (int button = -1; button <= kBack; ++button)
            EXPECT_EQ(first.isPressed(button), button == held && button <= kStart) << button;
        EXPECT_EQ(first.isStartPressed(), held == kStart);
        EXPECT_EQ(first.isBackPressed(), held == kBack);
        pad.release(kHeld[held]);
    }
}

TEST_F(XBOXControllerTest, TriggersAndStickMoveTheirAxesOutsideTheDeadZone)
{
    constexpr auto kX = SDL_CONTROLLER_AXIS_LEFTX, kY = SDL_CONTROLLER_AXIS_LEFTY;
    constexpr auto kLeft = SDL_CONTROLLER_AXIS_TRIGGERLEFT, kRight = SDL_CONTROLLER_AXIS_TRIGGERRIGHT;
    // Raw values; sticks count downwards.
    const std::tuple<SDL_GameControllerAxis, int, int, float> rows[] = {
        {kRight, 32767, InputDevice::kThrottleAxis, 1.0f},
        {kLeft, -32768 + 257, InputDevice::kBrakeAxis, -1 / 255.0f},
        {kX, 7849, InputDevice::kSteeringAxis, 7849 / 32768.0f},
        {kX, 7848, InputDevice::kSteeringAxis, 0.0f},
        {kX, -7848, InputDevice::kSteeringAxis, 0.0f},
        {kX, -32768, InputDevice::kSteeringAxis, -1.0f},
        {kY, -32768, InputDevice::kStickVerticalAxis, 32767 / 32768.0f},
        {kY, 32767, InputDevice::kStickVerticalAxis, -1.0f},
    };
    VirtualPad pad;
    pass();
    for (const auto& [moved, value, movedAxis, amount] : rows) {
        SCOPED_TRACE(testing::Message() << SDL_GameControllerGetStringForAxis(moved) << " at " << value);
        pad.move(moved, value);
        pass();
        for (int axis = -1; axis <= 4; ++axis)
            EXPECT_EQ(first.getAxis(axis), axis == movedAxis ? amount : 0.0f) << "axis " << axis;
        pad.move(moved, moved == kLeft || moved == kRight ? -32768 : 0);
    }
}

TEST_F(XBOXControllerTest, DoesAsItsOptionsSay)
{
    ControlOptions controls;
    controls.pads[1] = {"+righty", "x", "dpleft", "leftshoulder", "lefttrigger", "-lefty", "guide"};
    controls.rumble = 50;
    controls.deadZone = 60;
    XBOXController changed(2, pads, controls);
    VirtualPad one(1), two(2);
    const auto read = [&] {
        pass();
        changed.update();
    };
    read();
    two.move(SDL_CONTROLLER_AXIS_RIGHTY, 32767);
    two.move(SDL_CONTROLLER_AXIS_LEFTY, -20000);
    for (const auto button : {SDL_CONTROLLER_BUTTON_X, SDL_CONTROLLER_BUTTON_DPAD_LEFT, SDL_CONTROLLER_BUTTON_GUIDE})
        two.press(button);
    two.move(SDL_CONTROLLER_AXIS_TRIGGERLEFT, -1000); // not half its way
    read();
    EXPECT_EQ(changed.getAxis(InputDevice::kThrottleAxis), 32767 / 32768.0f);
    EXPECT_EQ(changed.getAxis(InputDevice::kBrakeAxis), -1);
    EXPECT_EQ(changed.getAxis(InputDevice::kSteeringAxis), -1);
    EXPECT_FALSE(changed.isPressed(InputDevice::kShoot));
    EXPECT_TRUE(changed.isPressed(InputDevice::kHandBrake) && changed.isPressed(InputDevice::kStart));
    two.move(SDL_CONTROLLER_AXIS_TRIGGERLEFT, 1000);
    two.move(SDL_CONTROLLER_AXIS_LEFTY, -18000); // within the dead zone
    two.press(SDL_CONTROLLER_BUTTON_LEFTSHOULDER);
    two.press(SDL_CONTROLLER_BUTTON_A);
    two.move(SDL_CONTROLLER_AXIS_TRIGGERRIGHT, 32767);
    read();
    EXPECT_EQ(changed.getAxis(InputDevice::kSteeringAxis), 0) << "both ways";
    EXPECT_EQ(changed.getAxis(InputDevice::kThrottleAxis), 32767 / 32768.0f) << "by nothing else";
    EXPECT_TRUE(changed.isPressed(InputDevice::kShoot));
    EXPECT_FALSE(changed.isPressed(InputDevice::kHandBrake));

    changed.vibrate(300, 60001, 1);
    EXPECT_EQ(two.rumbles, std::vector<Motors>({{30000, 0}}));
    changed.setLight({0.2f, 1, 0});
    const std::array<int, 3> kColour{51, 255, 0};
    EXPECT_EQ(two.colour, kColour);
    two.unplug();
    pass();
    two.plugIn();
    two.colour = {};
    pass();
    EXPECT_EQ(two.colour, kColour) << "a pad that comes shows the colour of its slot";
    EXPECT_EQ(one.colour, (std::array<int, 3>{}));
}

TEST_F(XBOXControllerTest, ARumbleStopsOnTheFirstUpdateAfterItsEndAndANewOneReplacesIt)
{
    VirtualPad pad;
    pass();
    first.vibrate(600, 30000, 30000);
    pass(100);
    first.vibrate(300, 60000, 50000);
    pass(300);
    EXPECT_EQ(pad.rumbles, std::vector<Motors>({{30000, 30000}, {60000, 50000}})) << "it lasts until after its end";
    pass();
    EXPECT_EQ(pad.rumbles.back(), Motors(0, 0)) << "the replaced request's end holds no more";
    pads.rumble(0, 100, 100);
    pass(1000);
    EXPECT_EQ(pad.rumbles.back(), Motors(100, 100)) << "what has ended once leaves the motors alone";

    const int before = pad.timesAsked;
    pass();
    EXPECT_EQ(pad.timesAsked, before + 1) << "all four together ask the pads once a pass";
}

TEST_F(XBOXControllerTest, AnUnpluggedPadIsAtRestUntilItOrAnotherTakesThePlayersSlot)
{
    CapturedLog log;
    VirtualPad wheel(9, SDL_JOYSTICK_TYPE_WHEEL), one(1), two(2); // other kinds of devices take no slot
    EXPECT_EQ(slots(), "12--");
    second.setJoined();
    two.press(kShootButton);
    two.move(SDL_CONTROLLER_AXIS_LEFTX, 32767);
    EXPECT_EQ(slots(), "1*--");
    EXPECT_GT(second.getAxis(InputDevice::kSteeringAxis), 0.0f);

    two.unplug();
    EXPECT_EQ(slots(), "1---");
    EXPECT_EQ(second.getAxis(InputDevice::kSteeringAxis), 0.0f);
    second.vibrate(300, 60000, 60000);
    two.plugIn();
    EXPECT_EQ(slots(), "12--") << "nothing is held on it any more";
    second.vibrate(300, 20000, 20000);
    EXPECT_EQ(two.rumbles, std::vector<Motors>({{20000, 20000}}));

    two.unplug();
    EXPECT_EQ(slots(), "1---");
    VirtualPad three(3);
    three.press(kShootButton);
    EXPECT_EQ(slots(), "1*--") << "the player's slot, though others are free";
    two.plugIn();
    VirtualPad four(4), five(5);
    EXPECT_EQ(slots(), "1*34") << "one waits";
    EXPECT_EQ((std::array{one.light, three.light, two.light, four.light}), (std::array{0, 1, 2, 3}));
    EXPECT_EQ(log.text(),
        "DEBUG | Game-pad 1 plugged in: Test pad 1\n"
        "DEBUG | Game-pad 2 plugged in: Test pad 2\n"
        "DEBUG | Game-pad 2 unplugged: Test pad 2\n"
        "DEBUG | Game-pad 2 plugged in: Test pad 2\n"
        "DEBUG | Game-pad 2 unplugged: Test pad 2\n"
        "DEBUG | Game-pad 2 plugged in: Test pad 3, in place of Test pad 2\n"
        "DEBUG | Game-pad 3 plugged in: Test pad 2\n"
        "DEBUG | Game-pad 4 plugged in: Test pad 4\n"
        "DEBUG | Game-pad waits for a free slot: Test pad 5\n");
}

} // namespace
