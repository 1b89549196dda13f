"""Smoke.tga: one soft cartoon puff with alpha."""
import sys

import numpy

from pictures import colour, mix, saveTga, smoothstep

SIZE = 128  # pixels a side
# Lobes of the puff: centre x, centre y, radius, in halves of the picture's side, y down. The game turns each puff by
# another angle.
LOBES = [(0.0, 0.0, 0.62)] + [(0.45 * numpy.cos(a), 0.45 * numpy.sin(a), r) for a, r in
                              ((0.2, 0.42), (1.15, 0.36), (2.2, 0.44), (3.25, 0.36), (4.2, 0.42), (5.3, 0.38))]


def puff():
    axis = (numpy.arange(SIZE) + 0.5) / SIZE * 2.0 - 1.0
    x, y = numpy.meshgrid(axis, axis)
    # Lobes are kept apart by the largest one at each place, but melt into each other a little.
    depth = numpy.log(sum(numpy.exp(14.0 * (r - numpy.hypot(x - cx, y - cy))) for cx, cy, r in LOBES)) / 14.0
    # Grown puffs must not show the square: nothing is left at the picture's edge.
    alpha = smoothstep(-0.06, 0.16, depth) * smoothstep(1.0, 0.86, numpy.hypot(x, y))
    tone = mix(colour("#c3cad4"), colour("#e6eaef"), smoothstep(0.14, 0.22, depth))
    tone = mix(tone, colour("#fafbfc"), smoothstep(0.43, 0.5, depth))
    return numpy.dstack([tone, alpha])


saveTga(sys.argv[1] + "/Smoke.tga", puff())
