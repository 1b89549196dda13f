#pragma once

#include "assets/IRenderServices.h"
#include "platform/AppWindow.h"
#include "render/CameraUniforms.h"
#include "render/CulledText.h"
#include "render/ModelRenderer.h"
#include "render/ShadowMappingRender.h"
#include "render/TextureFilters.h"
#include "render/ViewOptions.h"

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class DebugRenderer;
class IFrameProbe;
class IGameState;
struct Image;
class SceneGraph;
class TextRenderer;
class Viewport;
struct RenderTargets;

/// Owns the window, its OpenGL context, the off-screen targets and the passes, and draws one frame at a time.
///
/// Owned by the application's core. initialize() once, before any shader or texture is loaded; then render() once per
/// drawn frame until shouldClose(); then terminate(). Viewports, scene graph and debug renderer are borrowed and may be
/// replaced between frames. Its GL objects live until the process ends.
class Renderer final : public IRenderServices {
public:
    Renderer();
    ~Renderer();

    /// Open the window and create everything that frames need. Return false, with a log line at level 0, when there is
    /// no display, no OpenGL 4.3 or no entry points; then nothing else may be called but terminate().
    [[nodiscard]] bool initialize(const WindowOptions& windowOptions = {}, const ViewOptions& viewOptions = {});

    /// Make the targets anew if the window's size has changed. Return whether it has: then the viewports no longer fit.
    [[nodiscard]] bool followWindow();

    /// Draw and present one frame. The state (or null) gets its per-camera call after each viewport's models.
    void render(IGameState* state);

    bool shouldClose() const;
    void terminate();

    int getWidth() const { return width; }   ///< of the window's framebuffer, pixels
    int getHeight() const { return height; } ///< likewise
    AppWindow& getWindow() { return window; }

    void setSceneGraph(SceneGraph* graph) { sceneGraph = graph; }
    SceneGraph* getSceneGraph() const { return sceneGraph; }

    /// Draw these from now on, in their order. Again after their rectangles have changed: cameras may follow them.
    void setViewports(const std::vector<Viewport*>& list);
    const std::vector<Viewport*>& getViewports() const { return viewports; }

    void setDebugRenderer(DebugRenderer* renderer) { debugRenderer = renderer; }
    void setFrameProbe(IFrameProbe* newProbe) { probe = newProbe; } ///< null for none

    ModelRenderer* getModelRenderer() { return &modelRenderer; }
    ShadowMappingRender* getShadowRenderer() { return &shadowRenderer; }
    /// Tell what writes how many models a view leaves out, once for each view; none at first.
    void setCulledText(CulledText write) { writeCulled = std::move(write); }

    TextRenderer* getTextRenderer() { return textRenderer.get(); } ///< null before initialize()
    Camera* getCurrentCamera() const override { return currentCamera; }
    unsigned getLightDepthTexture() const; ///< GL name

    /// Return the source of "viewMatrix", "projectionMatrix" or "normalMatrix"; for any other name an empty entry.
    UniformVariant& getGlobalUniform(const std::string& name) override { return globalUniforms[name]; }

    float getPixelsPerUnit(const glm::vec3& position) const override;
    bool mayBeShaded(const glm::mat4& toWorld, const glm::vec3& min, const glm::vec3& max) const override;

    /// Return the frame as the window will show it, in red, green and blue. At the step "picture" only.
    Image readPicture() const;

    void setBlending(bool on); ///< off whatever `on` says while blending is not allowed
    void cullFrontFaces() override;
    void cullBackFaces() override;

    // Debug switches.
    void toggleWireframe(); ///< draw polygons as lines, straight into the window
    void toggleBlending() { blendingAllowed = !blendingAllowed; }
    void toggleFpsDisplay() { showFps = !showFps; }
    void toggleMagFilter() { filters.toggleMagnification(); }
    void cycleMinFilter() { filters.cycleMinification(); }
    void resetSwitches(); ///< to what they are at the start

private:
    bool openWindow(const WindowOptions& options);
    bool loadEntryPoints();
    void setFixedState();
    void makeTargets();

    void updateScene();
    void renderLightDepth();
    void renderLightDepthAnew();
    void renderViewports(IGameState* state);
    void renderModels(const Viewport& viewport);
    void renderDebugOverlay();
    void renderText();
    void updateFpsText();
    void postProcess();
    void stepDone(const char* step);

    int width = 0;
    int height = 0;
    ViewOptions views;
    bool wireframe = false;
    bool blendingAllowed = true;
    bool showFps = false;
    int lastFpsTime = 0; // milliseconds
    std::string fpsText;
    TextureFilters filters;

    AppWindow window;
    CulledText writeCulled;
    Camera* currentCamera = nullptr;
    int currentHeight = 0; // of the viewport being drawn, pixels
    ModelRenderer modelRenderer{this};
    ShadowMappingRender shadowRenderer;
    DebugRenderer* debugRenderer = nullptr;
    std::unique_ptr<TextRenderer> textRenderer;
    std::unique_ptr<RenderTargets> targets;
    std::vector<Viewport*> viewports;
    SceneGraph* sceneGraph = nullptr;
    IFrameProbe* probe = nullptr;

    Uniform_ViewMatrix viewMatrix{this};
    Uniform_ProjectionMatrix projectionMatrix{this};
    Uniform_NormalMatrix normalMatrix{this};
    std::map<std::string, UniformVariant> globalUniforms{
        {"viewMatrix", &viewMatrix},
        {"projectionMatrix", &projectionMatrix},
        {"normalMatrix", &normalMatrix},
    };
};
