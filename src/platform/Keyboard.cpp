#include "platform/Keyboard.h"

namespace {

class NoKeys : public IKeyboard {
public:
    bool isDown(int) override { return false; }
    void poll() override {}
};

NoKeys noKeys;
IKeyboard* current = &noKeys;

} // namespace

IKeyboard& keyboard()
{
    return *current;
}

void setKeyboard(IKeyboard* newKeyboard)
{
    current = newKeyboard ? newKeyboard : &noKeys;
}

bool isKeyDown(int key)
{
    return current->isDown(key);
}
