"""Grass.tga and Dirt.tga: two seamless toy-landscape grounds, flat tones with soft edges."""
import sys

import numpy

from pictures import colour, mix, saveTga, smoothstep, softNoise

SIZE = 512  # pixels a side


def scatter(count, clearance, seed):
    """Points on the torus, none nearer to another than `clearance` pixels."""
    random = numpy.random.default_rng(seed)
    points = []
    for candidate in random.uniform(0, SIZE, (count * 60, 2)):
        away = numpy.abs(numpy.array(points).reshape(-1, 2) - candidate)
        away = numpy.minimum(away, SIZE - away)
        if len(points) < count and (away ** 2).sum(1).min(initial=SIZE ** 2) > clearance ** 2:
            points.append(candidate)
    return points


def around(point):
    """Offsets of every pixel from a point of the torus, along x and y."""
    grid = numpy.arange(SIZE) + 0.5
    x, y = ((grid - c + SIZE / 2) % SIZE - SIZE / 2 for c in point)
    return numpy.meshgrid(x, y)


def blade(x, y, length, lean, width):
    """Coverage of a tapering blade that grows up from the origin and bends to `lean` at its tip."""
    t = numpy.clip(-y / length, 0.0, 1.0)
    halfWidth = width * (1.0 - t) + 0.3
    inside = halfWidth - numpy.abs(x - lean * t * t)
    return smoothstep(-0.8, 0.8, inside) * smoothstep(-1.0, 1.0, -y) * smoothstep(-1.0, 1.0, length + y)


def grass():
    picture = numpy.broadcast_to(colour("#60b63d"), (SIZE, SIZE, 3))
    broad, fine = softNoise(SIZE, 190, 1), softNoise(SIZE, 80, 2)
    picture = mix(picture, colour("#69bf42"), smoothstep(0.2, 0.35, broad + 0.35 * fine))
    picture = mix(picture, colour("#58ab39"), smoothstep(0.75, 0.9, -broad + 0.45 * fine))
    random = numpy.random.default_rng(3)
    for point in scatter(75, 44, 4):
        x, y = around(point)
        tone = colour("#86d455") if random.random() < 0.6 else colour("#479a31")
        height = random.uniform(11, 17)
        for lean in (-7, 0, 7):
            picture = mix(picture, tone, 0.85 * blade(x - lean * 0.35, y,
                          height * (1.15 if lean == 0 else 0.85), lean, 2.4))
    return picture


def dirt():
    picture = numpy.broadcast_to(colour("#c98f55"), (SIZE, SIZE, 3))
    broad, fine = softNoise(SIZE, 170, 11), softNoise(SIZE, 70, 12)
    picture = mix(picture, colour("#d39b60"), smoothstep(0.25, 0.4, broad + 0.4 * fine))
    picture = mix(picture, colour("#be844d"), smoothstep(0.75, 0.9, -broad + 0.45 * fine))
    random = numpy.random.default_rng(13)
    for point in scatter(38, 60, 14):
        x, y = around(point)
        angle, long, flat = random.uniform(-0.5, 0.5), random.uniform(5, 12), random.uniform(0.6, 0.8)
        u = x * numpy.cos(angle) + y * numpy.sin(angle)
        v = (y * numpy.cos(angle) - x * numpy.sin(angle)) / flat
        shadow = smoothstep(1.5, -1.5, numpy.hypot(u, v - 2.5 / flat) - long)
        stone = smoothstep(1.0, -1.0, numpy.hypot(u, v) - long)
        crown = smoothstep(1.0, -1.0, numpy.hypot(u, v + 0.22 * long) - 0.72 * long)
        picture = mix(picture, colour("#a56e3e"), shadow)
        picture = mix(picture, colour("#d8ac78"), stone)
        picture = mix(picture, colour("#e8c290"), crown * stone)
    return picture


saveTga(sys.argv[1] + "/Grass.tga", grass())
saveTga(sys.argv[1] + "/Dirt.tga", dirt())
