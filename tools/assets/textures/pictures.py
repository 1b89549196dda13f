"""What the picture scripts share: seamless noise, soft thresholds, TGA output.

Arrays hold floats of 0 to 1, row 0 at the top of the picture as one looks at it.
"""
import numpy
from PIL import Image


def softNoise(size, wavelength, seed):
    """Seamless noise of about one hump per `wavelength` pixels, mean 0 and standard deviation 1."""
    white = numpy.random.default_rng(seed).standard_normal((size, size))
    frequency = numpy.hypot(numpy.fft.fftfreq(size)[:, None], numpy.fft.fftfreq(size)[None, :])
    # A band rather than a low pass: blobs of one size read as drawn, a full spectrum reads as dirt on the lens.
    band = numpy.exp(-((frequency * wavelength - 1.0) / 0.45) ** 2)
    band[0, 0] = 0.0
    noise = numpy.fft.ifft2(numpy.fft.fft2(white) * band).real
    return noise / noise.std()


def smoothstep(low, high, value):
    t = numpy.clip((value - low) / (high - low), 0.0, 1.0)
    return t * t * (3.0 - 2.0 * t)


def mix(a, b, amount):
    """Blend colours or colour fields; `amount` is a field of 0 to 1 without a colour axis."""
    amount = numpy.asarray(amount)[..., None]
    return numpy.asarray(a) * (1.0 - amount) + numpy.asarray(b) * amount


def colour(text):
    """'#rrggbb' as three floats."""
    return numpy.array([int(text[i:i + 2], 16) for i in (1, 3, 5)]) / 255.0


def saveTga(path, field, runLength=True):
    """Write one, three or four components a pixel, bottom row first."""
    bytes_ = numpy.clip(numpy.rint(numpy.asarray(field) * 255.0), 0, 255).astype(numpy.uint8)
    Image.fromarray(bytes_).save(path, compression="tga_rle" if runLength else None, orientation=-1)
