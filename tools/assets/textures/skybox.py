"""skybox.tga: sky, clouds, hills and sea as the six faces of a box seen from inside.

Four by two cells: -X, +Z, +X and -Z side by side below, +Y above +Z. The floor of the box shows one texel, the lower
left corner. Every texel takes the colour of the direction it is seen in, so faces meet by construction; and the sky
above as well as the sea below fade to one blue before the box's upper and lower edges, so that what filtering mixes in
there from cells which are no neighbours on the box is that same blue.
"""
import sys

import numpy

from pictures import colour, mix, saveTga, smoothstep

CELL = 512   # pixels a side
FINE = 2     # samples a pixel and axis

BLUE = colour("#3c92e8")
HAZE, SEA_HAZE, SHALLOWS = colour("#d4eefb"), colour("#a9e3ee"), colour("#4fb9e2")
FAR_HILLS, NEAR_HILLS, NEAR_HILLS_LIT = colour("#9cc7e4"), colour("#76c08c"), colour("#8fd09a")
CLOUD, CLOUD_SHADE = colour("#ffffff"), colour("#d3e6f6")

# Faces: where u and v of a cell run in the world, from the corner (0, 0), with half the box's side as 1.
FACES = {
    "-X": ((0, 0), (-1, -1, -1), (0, 0, 2), (0, 2, 0)),
    "+Z": ((1, 0), (-1, -1, 1), (2, 0, 0), (0, 2, 0)),
    "+X": ((2, 0), (1, -1, 1), (0, 0, -2), (0, 2, 0)),
    "-Z": ((3, 0), (1, -1, -1), (-2, 0, 0), (0, 2, 0)),
    "+Y": ((1, 1), (-1, 1, 1), (2, 0, 0), (0, 0, -2)),
}


def clouds():
    """Lists of lobes (azimuth, elevation, radius, all in degrees), one list a cloud."""
    random = numpy.random.default_rng(5)
    result = []
    for index in range(13):
        azimuth = index * 360.0 / 13 + random.uniform(-8, 8)
        elevation = (5.5, 10.0, 7.0, 14.0)[index % 4] + random.uniform(-1, 1)
        width = random.uniform(4.5, 6.0) + 0.22 * elevation
        count = 5
        lobes = []
        for lobe in range(count):
            along = lobe / (count - 1) * 2.0 - 1.0
            radius = width * (0.5 - 0.22 * abs(along) ** 1.5) * random.uniform(0.8, 1.1)
            lobes.append((azimuth + along * width, elevation + 0.45 * radius, radius))
        result.append((elevation, lobes))
    return result


def hills(azimuth, seed, height):
    """Elevation in degrees of a ridge; whole waves only, so that it closes around the horizon."""
    random = numpy.random.default_rng(seed)
    ridge = sum(numpy.sin(azimuth * waves + random.uniform(0, 6.28)) / (1 + abs(k - 2) * 0.5)
                for k, waves in enumerate((3, 5, 8, 13)))
    return height * numpy.maximum(0.0, 0.45 + 0.38 * ridge)


def look(direction):
    """Colours of an array of unit directions."""
    x, y, z = (direction[..., i] for i in range(3))
    azimuth = numpy.arctan2(x, z)
    elevation = numpy.degrees(numpy.arcsin(y))

    picture = mix(HAZE, BLUE, smoothstep(-6, 33, elevation))
    for base, lobes in clouds():
        body, light = numpy.full((2, *elevation.shape), -1.0)
        for lobeAzimuth, lobeElevation, radius in lobes:
            around = (numpy.degrees(azimuth) - lobeAzimuth + 180.0) % 360.0 - 180.0
            across = around * numpy.cos(numpy.radians(lobeElevation))
            body = numpy.maximum(body, radius - numpy.hypot(across, elevation - lobeElevation))
            fromLobe = numpy.hypot(across - 0.15 * radius, elevation - lobeElevation - 0.35 * radius)
            light = numpy.maximum(light, radius - fromLobe)
        flatBase = smoothstep(-0.2, 0.2, elevation - base)
        cover = smoothstep(-0.1, 0.15, body) * flatBase
        picture = mix(picture, CLOUD_SHADE, cover)
        picture = mix(picture, CLOUD, cover * smoothstep(-0.15, 0.25, light) * smoothstep(0.6, 1.2, elevation - base))

    for ridge, tone in ((hills(azimuth, 1, 5.6), FAR_HILLS), (hills(azimuth, 9, 3.4), NEAR_HILLS)):
        cover = smoothstep(-0.05, 0.1, ridge - elevation) * (ridge > 0.0)
        picture = mix(picture, tone, cover)
        if tone is NEAR_HILLS:
            picture = mix(picture, NEAR_HILLS_LIT, cover * smoothstep(0.0, 0.15, elevation - 0.55 * ridge))

    sea = mix(SEA_HAZE, SHALLOWS, smoothstep(0.0, -9.0, elevation))
    sea = mix(sea, BLUE, smoothstep(-7.0, -33.0, elevation))
    return mix(picture, sea, smoothstep(0.04, -0.04, elevation))


def face(corner, along, up):
    """One cell, row 0 at the top."""
    steps = (numpy.arange(CELL * FINE) + 0.5) / (CELL * FINE)
    u, v = numpy.meshgrid(steps, steps[::-1])
    direction = numpy.array(corner) + u[..., None] * numpy.array(along) + v[..., None] * numpy.array(up)
    direction = direction / numpy.linalg.norm(direction, axis=-1, keepdims=True)
    return look(direction).reshape(CELL, FINE, CELL, FINE, 3).mean(axis=(1, 3))


picture = numpy.broadcast_to(BLUE, (2 * CELL, 4 * CELL, 3)).copy()
for (column, row), corner, along, up in FACES.values():
    picture[(1 - row) * CELL:(2 - row) * CELL, column * CELL:(column + 1) * CELL] = face(corner, along, up)
saveTga(sys.argv[1] + "/skybox.tga", picture)
