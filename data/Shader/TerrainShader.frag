#version 430 core
in vec3 worldPosition;
in vec3 worldNormal;
flat in float dirtLevels; // that the picture of dirt has more than that of grass

uniform sampler2D tex_grass;
uniform sampler2D tex_dirt;

out vec4 fragment;

const float kTilesPerUnit = 0.05; // texture repeats a world unit
const float kStripe = 12.0;       // world units: half the period of the mown chequers
const float kInnerRing = 36.0;    // world units: radius of the worn ring around the middle of the arena
const float kOuterRing = 84.0;    // world units: radius of the one on the way to the rim
const float kRingHalfWidth = 2.6; // world units
const vec3 kToLight = vec3(0.2873479, 0.9578263, 0.0);

// Return how much light gets here, 0 to 1.
float lit();

void main()
{
    vec2 uv = worldPosition.xz * kTilesPerUnit;
    // The nearer mip level alone: with two levels a software driver samples twice. Asking for it is dear, too.
    float level = round(textureQueryLod(tex_grass, uv).y);
    vec3 grass = textureLod(tex_grass, uv, level).rgb;
    vec3 dirt = textureLod(tex_dirt, uv, level + dirtLevels).rgb;

    // Dirt where it is steep, on low ground, and where the rings are worn into the grass, whose tufts fray their edges.
    float flatness = smoothstep(0.90, 0.965, worldNormal.y);
    float height = smoothstep(20.0, 30.0, worldPosition.y);
    float radius = length(worldPosition.xz);
    float offRing = min(abs(radius - kInnerRing), abs(radius - kOuterRing)) - kRingHalfWidth + 6.0 * (grass.g - 0.66);
    float green = flatness * height * smoothstep(0.0, 0.9, offRing);
    vec2 cell = floor(worldPosition.xz / kStripe);
    float mown = mod(cell.x + cell.y, 2.0) < 0.5 ? 1.0 : 0.93;
    vec3 ground = mix(dirt, grass * mown, green);

    float light = dot(worldNormal, kToLight);
    float sun = lit();
    float band = 0.62 + sun * (0.22 + 0.16 * smoothstep(0.86, 0.90, light));
    fragment = vec4(ground * mix(vec3(0.82, 0.86, 1.08), vec3(1.0), sun) * band, 1.0);
}
