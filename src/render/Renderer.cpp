#include "render/Renderer.h"

#include "base/FrameTimer.h"
#include "base/IGameState.h"
#include "base/Logger.h"
#include "platform/Image.h"
#include "platform/Keyboard.h"
#include "render/DebugRenderer.h"
#include "render/FrameProbe.h"
#include "render/GlDebug.h"
#include "render/RenderTargets.h"
#include "render/TextRenderer.h"
#include "scene/Camera.h"
#include "scene/SceneGraph.h"
#include "scene/Viewport.h"

#include <GL/glew.h>
#include <GLFW/glfw3.h>

#include <algorithm>
#include <sstream>

namespace {

constexpr const char* kTitle = "Quackdash";
constexpr int kFpsInterval = 1000;           // milliseconds between two texts
constexpr float kNearest = 0.1f;             // world units from the eye: what is nearer is not drawn
constexpr double kFpsX = -0.8, kFpsY = -0.8; // normalised device coordinates

/// Return how long a side of what is drawn may be, in pixels.
int longestSide()
{
    GLint texture = 0, viewport[2] = {};
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &texture);
    glGetIntegerv(GL_MAX_VIEWPORT_DIMS, viewport);
    return std::min({texture, viewport[0], viewport[1]});
}

void setArea(int x, int y, int width, int height)
{
    glViewport(x, y, width, height);
    glScissor(x, y, width, height);
}

/// Clear the viewport's rectangle and confine drawing to it.
void apply(const Viewport& viewport)
{
    const glm::vec4& colour = viewport.clearColour;
    const Viewport::Rect& rect = viewport.getRect();
    glClearColor(colour.r, colour.g, colour.b, colour.a);
    glEnable(GL_DEPTH_TEST);
    glDepthMask(GL_TRUE);
    setArea(rect.x, rect.y, rect.width, rect.height);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

} // namespace

Renderer::Renderer()
{
    IRenderServices::setCurrent(this);
}

Renderer::~Renderer()
{
    if (IRenderServices::current() == this) IRenderServices::setCurrent(nullptr);
}

bool Renderer::initialize(const WindowOptions& windowOptions, const ViewOptions& viewOptions)
{
    logLine(2) << "Initialize Renderer" << std::endl;
    views = viewOptions;
    if (!openWindow(windowOptions) || !loadEntryPoints()) {
        window.terminate();
        return false;
    }
    setFixedState();
    textRenderer = std::make_unique<TextRenderer>();
    window.limitTo(longestSide());
    makeTargets();
    return true;
}

void Renderer::makeTargets()
{
    width = window.framebufferSize().width;
    height = window.framebufferSize().height;
    targets.reset(); // so that no two stand in memory at a time
    targets = std::make_unique<RenderTargets>(glm::ivec2(width, height));
}

bool Renderer::followWindow()
{
    const AppWindow::Pixels size = window.framebufferSize();
    if (size.width == width && size.height == height) return false;
    makeTargets();
    return true;
}

bool Renderer::openWindow(const WindowOptions& options)
{
    if (!window.initialize()) {
        logLine(0) << "Glfw initialization failed" << std::endl;
        return false;
    }
    logLine(2) << "Glfw initialized" << std::endl;
    if (!window.open(options, kTitle)) {
        logLine(0) << "Opengl 4.3 not available" << std::endl;
        return false;
    }
    logLine(2) << "Create Window" << std::endl;
    return true;
}

bool Renderer::loadEntryPoints()
{
    glewExperimental = GL_TRUE;
    if (const GLenum result = glewInit(); result != GLEW_OK) {
        logLine(0) << "Error" << reinterpret_cast<const char*>(glewGetErrorString(result)) << std::endl;
        return false;
    }
    logLine(2) << "Glew initialized" << std::endl;
    return true;
}

void Renderer::setFixedState()
{
    glClearColor(0.2f, 0.3f, 0.5f, 1.0f);
    glEnable(GL_DEPTH_TEST);
    glDepthMask(GL_TRUE);
    glEnable(GL_SCISSOR_TEST);
    glEnable(GL_CULL_FACE);
    cullFrontFaces();
    glPatchParameteri(GL_PATCH_VERTICES, 3); // the landscape is drawn as triangle patches
    enableGlDebugOutput();
}

void Renderer::render(IGameState* state)
{
    updateScene();
    renderLightDepth();
    renderViewports(state);
    renderText();
    if (!wireframe) postProcess();
    stepDone("picture");
    window.swapBuffers();
    stepDone("swap");
}

void Renderer::setViewports(const std::vector<Viewport*>& list)
{
    viewports = list;
    if (!views.wide) return;
    for (const Viewport* viewport : viewports) {
        const Viewport::Rect& rect = viewport->getRect();
        viewport->camera->fit(static_cast<float>(rect.width) / static_cast<float>(rect.height));
    }
}

void Renderer::updateScene()
{
    if (sceneGraph) sceneGraph->update();
    stepDone("scene update");
}

void Renderer::renderLightDepth()
{
    if (sceneGraph) sceneGraph->accept(&shadowRenderer);
    if (sceneGraph && !wireframe) targets->shadowCache.draw(shadowRenderer);
    else renderLightDepthAnew();
    stepDone("shadow pass");
}

/// Clear the depth and draw every caster, without the cache: in wireframe mode into the window, as everything else.
void Renderer::renderLightDepthAnew()
{
    if (!wireframe) {
        targets->light.bind();
        targets->shadowCache.invalidate();
    }
    const glm::ivec2 size = targets->lightDepth.getSize();
    setArea(0, 0, size.x, size.y);
    glClear(GL_DEPTH_BUFFER_BIT);
    if (sceneGraph) shadowRenderer.render();
}

void Renderer::renderViewports(IGameState* state)
{
    if (!wireframe) targets->scene.bind();
    for (const Viewport* viewport : viewports) {
        apply(*viewport);
        currentCamera = viewport->camera;
        currentHeight = viewport->getRect().height;
        renderModels(*viewport);
        if (state) state->renderCamera(currentCamera);
        if (isKeyDown(GLFW_KEY_F6)) renderDebugOverlay();
    }
    setArea(0, 0, width, height);
    stepDone("model passes");
}

void Renderer::renderModels(const Viewport& viewport)
{
    if (!sceneGraph) return;
    sceneGraph->accept(&modelRenderer);
    const unsigned culled = modelRenderer.render(currentCamera);
    if (writeCulled && !isKeyDown(GLFW_KEY_F1)) writeCulled("culled: " + std::to_string(culled), viewport);
}

void Renderer::renderDebugOverlay()
{
    if (!debugRenderer || !sceneGraph) return;
    sceneGraph->accept(debugRenderer);
    debugRenderer->render(currentCamera);
}

void Renderer::renderText()
{
    updateFpsText();
    if (showFps) textRenderer->addText(fpsText, kFpsX, kFpsY);
    textRenderer->render();
    stepDone("text");
}

void Renderer::updateFpsText()
{
    const double now = FrameTimer::getInstance()->getTimeMs();
    if (lastFpsTime + kFpsInterval >= now) return;
    std::ostringstream text;
    text << "FPS: " << 1 / FrameTimer::getInstance()->getDelta();
    fpsText = text.str();
    lastFpsTime = static_cast<int>(now);
}

void Renderer::postProcess()
{
    const PostProcessing& post = targets->post;
    const bool usable = post.isUsable();
    if (usable)
        post.blur(targets->sceneColour, targets->sceneDepth, targets->lightDepth,
            FrameTimer::getInstance()->getTimeMs());
    stepDone("Blur");
    if (usable) post.celPostProc();
    else post.showUnprocessed(targets->scene);
    stepDone("CelPostProc");
}

Image Renderer::readPicture() const
{
    constexpr int kChannels = 3;
    Image picture{width, height, kChannels, {}};
    picture.pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * kChannels);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(0, 0, width, height, GL_RGB, GL_UNSIGNED_BYTE, picture.pixels.data());
    return picture;
}

void Renderer::stepDone(const char* step)
{
    if (probe) probe->stepDone(step);
}

bool Renderer::shouldClose() const
{
    return !window.isOpen();
}

void Renderer::terminate()
{
    window.terminate();
}

unsigned Renderer::getLightDepthTexture() const
{
    return targets->lightDepth.getHandle();
}

float Renderer::getPixelsPerUnit(const glm::vec3& position) const
{
    const glm::vec4 clip = currentCamera->getProjection() * currentCamera->getView() * glm::vec4(position, 1);
    const float unit = currentCamera->getProjection()[1][1] / std::max(clip.w, kNearest);
    return unit * static_cast<float>(currentHeight) / 2;
}

bool Renderer::mayBeShaded(const glm::mat4& toWorld, const glm::vec3& min, const glm::vec3& max) const
{
    return targets->shadowCache.mayReach(toWorld, min, max);
}

void Renderer::setBlending(bool on)
{
    if (on && blendingAllowed) glEnable(GL_BLEND);
    else glDisable(GL_BLEND);
}

void Renderer::cullFrontFaces()
{
    glCullFace(GL_FRONT);
}

void Renderer::cullBackFaces()
{
    glCullFace(GL_BACK);
}

void Renderer::toggleWireframe()
{
    wireframe = !wireframe;
    glPolygonMode(GL_FRONT_AND_BACK, wireframe ? GL_LINE : GL_FILL);
}

void Renderer::resetSwitches()
{
    if (wireframe) toggleWireframe();
    blendingAllowed = true;
    showFps = false;
    fpsText.clear();
    lastFpsTime = 0;
    filters.reset();
}
