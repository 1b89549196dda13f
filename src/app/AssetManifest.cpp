#include "app/AssetManifest.h"

namespace {

constexpr Asset kShaders[] = {
    {"Shader/ShadowDepth.shader", "ShadowDepth"},
    {"Shader/Cel.shader", "Cel"},
    {"Shader/CelPostProc.shader", "CelPostProc"},
    {"Shader/Blur.shader", "Blur"},
    {"Shader/TextShader.shader", "TextShader"},
    {"Shader/ParticleRender.shader", "ParticleRender"},
    {"Shader/ParticleMovement.shader", "ParticleMovement"},
    {"Shader/TerrainShader.shader", "TerrainShader"},
    {"Shader/TerrainFar.shader", "TerrainFar"},
    {"Shader/TerrainSunny.shader", "TerrainSunny"},
    {"Shader/PlayerShader.shader", "PlayerShader"},
    {"Shader/SkyboxShader.shader", "SkyboxShader"},
    {"Shader/ColorShader.shader", "ColorShader"},
    {"Shader/BasicShader.shader", "BasicShader"},
    {"Shader/WireframeShader.shader", "WireframeShader"},
    {"Shader/TextureShader.shader", "TextureShader"},
    {"Shader/PostProcessingTest.shader", "BasicPostprocessing"},
};

constexpr Asset kTextures[] = {
    {"Models/skybox.tga", "Skybox"},
    {"Textures/Dirt.tga", "Dirt"},
    {"Textures/Grass.tga", "Grass"},
    {"Textures/Smoke.tga", "Smoke"},
    {"Textures/font.tga", "Font"},
};

constexpr Asset kSounds[] = {
    {"Audio/quackdash.mp3", "musik"},
    {"Audio/duck.wav", "duck"},
    {"Audio/bang.wav", "bang"},
};

} // namespace

std::span<const Asset> shaderAssets()
{
    return kShaders;
}

std::span<const Asset> textureAssets()
{
    return kTextures;
}

std::span<const Asset> soundAssets()
{
    return kSounds;
}
