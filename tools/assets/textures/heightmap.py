"""map.tga: the playing field's heights, one grey byte a world unit.

A pixel's column counts along world z and its row from the bottom along world x, both from -256; the byte 255 stands for
a height of 50 units. The game reads every eighth pixel, so nothing here is narrower than three of those.

The middle, where cars enter, rolls gently at 40 to 46 units: cars drop in from 50, and where frames are slow a longer
fall tips them over. Around it runs a sunken ring, then a rim of hills with a lookout in each corner. Along z two
causeways lead level to the edge, along x two gaps slope down to it: there one can drive off the field.
"""
import sys

import numpy

from pictures import saveTga, smoothstep, softNoise

SIZE = 512              # pixels a side, one world unit each
FULL_HEIGHT = 50.0      # units that byte 255 stands for
ENTRY = 100             # cars enter at x and z of -ENTRY to ENTRY - 1 ...
ENTRY_LOW, ENTRY_HIGH = 39.2, 45.8  # ... and the ground there keeps to these heights
DRIVABLE_SLOPE = numpy.tan(numpy.radians(25.0))

MEADOW, RING, CREST, LOOKOUT, CAUSEWAY, SHORE = 41.8, 22.5, 38.0, 46.0, 39.8, 20.0  # heights in units


def ramp(value, start, end):
    """0 before `start`, 1 beyond `end`, even in between: for a given rise the gentlest slope. The final blur rounds its
    ends."""
    return numpy.clip((value - start) / (end - start), 0.0, 1.0)


def blurred(field, sigma):
    """Gaussian blur whose borders repeat the edge."""
    reach = int(sigma * 3)
    kernel = numpy.exp(-0.5 * (numpy.arange(-reach, reach + 1) / sigma) ** 2)
    kernel /= kernel.sum()
    for axis in (0, 1):
        padded = numpy.pad(field, [(reach, reach) if a == axis else (0, 0) for a in (0, 1)], mode="edge")
        field = numpy.apply_along_axis(lambda line: numpy.convolve(line, kernel, mode="valid"), axis, padded)
    return field


def heights():
    """Heights in units, indexed [x + 256][z + 256]."""
    axis = numpy.arange(SIZE) - 256.0
    x, z = numpy.meshgrid(axis, axis, indexing="ij")
    # Distance from the middle, in rings that are rounded squares: the field is square and so is the entry.
    ring = ((x ** 4 + z ** 4) ** 0.25)

    height = MEADOW + (RING - MEADOW) * ramp(ring, 123, 171)
    gap = ramp(numpy.abs(z), 74, 26) * smoothstep(150, 190, numpy.abs(x))
    height = height + (CREST - RING) * ramp(ring, 183, 227) * (1.0 - gap)
    height = height + (SHORE - RING) * smoothstep(190, 250, ring) * gap
    height = height - 6.0 * smoothstep(232, 262, ring) * (1.0 - gap)
    for corner in ((-1, -1), (-1, 1), (1, -1), (1, 1)):
        lookout = ramp(numpy.hypot(x - corner[0] * 212, z - corner[1] * 212), 96, 22)
        height = height + numpy.maximum(0.0, LOOKOUT - height) * lookout
    causeway = ramp(numpy.abs(x), 54, 15) * smoothstep(95, 125, numpy.abs(z))
    height = height + numpy.maximum(0.0, CAUSEWAY - height) * causeway

    # Inside the meadow: a table in the middle, steep enough to show its soil, and four gentle mounds with flat tops
    # around it.
    height = height + 3.4 * ramp(numpy.hypot(x, z), 42, 25)
    for angle in (38, 128, 218, 308):
        centre = 82 * numpy.cos(numpy.radians(angle)), 82 * numpy.sin(numpy.radians(angle))
        height = height + 1.7 * smoothstep(44, 12, numpy.hypot(x - centre[0], z - centre[1]))
    waves = 1.0 * softNoise(SIZE, 125, 27) + 0.35 * softNoise(SIZE, 60, 28)
    height = height + waves * (1.0 - 0.7 * causeway) * (1.0 - ramp(numpy.hypot(x, z), 50, 30))
    return blurred(height, 4.5)


def report(height):
    """Stop on a field that does not keep to the rules above; the samples are what the game drives on."""
    samples = height[::8, ::8]
    entry = samples[(256 - ENTRY) // 8:(256 + ENTRY) // 8 + 2, (256 - ENTRY) // 8:(256 + ENTRY) // 8 + 2]
    slopes = numpy.hypot(*numpy.gradient(samples, 8.0))
    print("entry %.1f to %.1f, field %.1f to %.1f, steeper than 25 degrees: %.2f %%, "
          "steepest in the middle %.1f degrees" % (
        entry.min(), entry.max(), samples.min(), samples.max(), 100.0 * (slopes > DRIVABLE_SLOPE).mean(),
        numpy.degrees(numpy.arctan(slopes[19:46, 19:46].max()))))
    if entry.min() < ENTRY_LOW or entry.max() > ENTRY_HIGH:
        sys.exit("the entry square leaves its heights")
    if (slopes > DRIVABLE_SLOPE).mean() > 0.01:
        sys.exit("too much of the field is too steep to drive")


field = heights()
report(field)
saveTga(sys.argv[1] + "/map.tga", field[::-1] / FULL_HEIGHT)
