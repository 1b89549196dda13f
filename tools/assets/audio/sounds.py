"""What the sound scripts share: 16-bit mono files, envelopes, filters in the frequency domain."""
import numpy
import soundfile

RATE = 44100 # samples a second of every file


def seconds(length):
    """The times of a sound's samples."""
    return numpy.arange(round(length * RATE)) / RATE


def contour(times, points):
    """A smooth curve through (time, value) points, in cosine steps."""
    at, values = numpy.array(points, dtype=float).T
    place = numpy.clip(numpy.searchsorted(at, times, side="right") - 1, 0, len(at) - 2)
    t = numpy.clip((times - at[place]) / (at[place + 1] - at[place]), 0.0, 1.0)
    return values[place] + (values[place + 1] - values[place]) * (0.5 - 0.5 * numpy.cos(numpy.pi * t))


def band(signal, low, high):
    """The part of a signal between two frequencies in hertz, with soft edges; the signal is taken as a loop."""
    spectrum = numpy.fft.rfft(signal)
    frequency = numpy.maximum(numpy.fft.rfftfreq(len(signal), 1.0 / RATE), 1e-3)
    spectrum /= numpy.sqrt((1.0 + (low / frequency) ** 4) * (1.0 + (frequency / high) ** 4))
    return numpy.fft.irfft(spectrum, len(signal))


def faded(signal, start=0.002, end=0.02):
    """Without a click at either end."""
    times = numpy.arange(len(signal)) / RATE
    return signal * numpy.minimum(1.0, times / start) * numpy.minimum(1.0, (times[-1] - times) / end)


def save(path, signal, peak):
    soundfile.write(path, signal / numpy.abs(signal).max() * peak, RATE, subtype="PCM_16")
