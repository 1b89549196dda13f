#include "app/Core.h"

#include "app/GameOptions.h"
#include "app/GameStateManager.h"
#include "assets/Library.h"
#include "render/Renderer.h"

Core::Core() : stateManager(new GameStateManager()), renderer(new Renderer()) {}

Core* Core::getInstance()
{
    static Core* instance = new Core();
    return instance;
}

bool Core::init(const GameOptions& options)
{
    Library::getInstance()->loadModels();
    return renderer->initialize(options.window, options.view);
}
