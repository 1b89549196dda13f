"""Smoke.tga: one soft cartoon puff with alpha."""
import sys

import numpy

from pictures import colour, mix, saveTga, smoothstep

SIZE = 128  # pixels a side
# Lobes of the puff: centre x, centre y, radius, in halves of the picture's side, y down.
LOBES = [(0.0, 0.06, 0.56), (-0.36, 0.14, 0.38), (0.38, 0.16, 0.37), (-0.2, -0.32, 0.4), (0.24, -0.3, 0.38)]


def puff():
    axis = (numpy.arange(SIZE) + 0.5) / SIZE * 2.0 - 1.0
    x, y = numpy.meshgrid(axis, axis)
    # Lobes melt into each other: the sum of soft humps has one rounded outline.
    humps = sum(numpy.exp(-3.0 * ((x - cx) ** 2 + (y - cy) ** 2) / r ** 2) for cx, cy, r in LOBES)
    # Grown smoke sprites must not show the square: nothing is left at the picture's edge.
    rim = smoothstep(1.0, 0.78, numpy.hypot(x, y))
    alpha = smoothstep(0.1, 0.62, humps) * rim
    light = sum(numpy.exp(-3.0 * ((x - cx + 0.1) ** 2 + (y - cy + 0.16) ** 2) / r ** 2) for cx, cy, r in LOBES)
    tone = mix(colour("#c9cfd8"), colour("#f4f6f8"), smoothstep(0.55, 0.95, light))
    return numpy.dstack([tone, alpha])


saveTga(sys.argv[1] + "/Smoke.tga", puff())
