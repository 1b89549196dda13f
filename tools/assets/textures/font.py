"""font.tga: printable ASCII as 16 x 16 cells, white with a dark rim on nothing.

Cell 0 is '!', at the bottom left of the stored picture; cells go right, then up. Text is drawn with a glyph's top edge
at the smaller v, so each glyph stands on its head as stored: the whole sheet is the ordinary reading order turned
upside down.
"""
import sys

import numpy
from PIL import Image, ImageDraw, ImageFont

from pictures import saveTga

CELL = 32        # pixels a side
FINE = 4         # glyphs are drawn this much larger and shrunk, for even edges
FONT = "/usr/share/fonts/truetype/dejavu/DejaVuSansMono-Bold.ttf"
FONT_PIXELS = 25 # em height; a cell is shown about 32 wide and 24 high
WIDEN = 1.5      # a mono-spaced face is narrower than these cells
RIM = 1.7        # pixels of dark outline
BASELINE = 0.715 # of a cell from its top; leaves room for what hangs below, rim included


def glyph(character):
    """One cell as (coverage of fill, coverage of fill and rim)."""
    side = CELL * FINE
    font = ImageFont.truetype(FONT, FONT_PIXELS * FINE)
    layers = []
    for stroke in (0, round(RIM * FINE)):
        narrow = round(side / WIDEN)
        image = Image.new("L", (narrow, side))
        ImageDraw.Draw(image).text((narrow / 2, side * BASELINE), character, fill=255, font=font, anchor="ms",
                                   stroke_width=stroke, stroke_fill=255)
        image = image.resize((CELL, CELL), Image.Resampling.BOX)
        layers.append(numpy.asarray(image, dtype=float) / 255.0)
    return layers


def sheet():
    fill, whole = numpy.zeros((2, 16 * CELL, 16 * CELL))
    for code in range(ord("!"), 127):
        row, column = divmod(code - ord("!"), 16)
        at = numpy.s_[row * CELL:(row + 1) * CELL, column * CELL:(column + 1) * CELL]
        fill[at], whole[at] = glyph(chr(code))
    ink = numpy.array([0.07, 0.1, 0.2])
    share = (fill / numpy.maximum(whole, 1e-6))[..., None]
    tone = ink * (1.0 - share) + share
    tone[whole == 0.0] = ink # filtering must not pull bright fringes out of empty texels
    return numpy.dstack([tone, whole])[::-1]


saveTga(sys.argv[1] + "/font.tga", sheet())
