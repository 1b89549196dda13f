"""duck.wav, bang.wav and engine.wav, synthesised.

Peaks are set so that music, six engines and ten shots fired in one instant stay below full scale; see check_mix.py.
"""
import sys

import numpy

from sounds import RATE, band, contour, faded, save, seconds


def voiced(times, pitch, formants, roughness, seed):
    """A reedy voice: harmonics of `pitch` shaped by formants of (frequency contour, width in hertz, gain)."""
    random = numpy.random.default_rng(seed)
    jitter = band(random.standard_normal(len(times)), 15, 60)
    pitch = pitch * (1.0 + roughness * jitter / jitter.std())
    phase = 2.0 * numpy.pi * numpy.cumsum(pitch) / RATE
    result = numpy.zeros(len(times))
    for harmonic in range(1, 40):
        frequency = pitch * harmonic
        gain = sum(g / (1.0 + ((frequency - f) / w) ** 2) for f, w, g in formants)
        result += numpy.where(frequency < 9000.0, gain, 0.0) * numpy.sin(harmonic * phase + 0.4 * harmonic ** 2)
    # Every second vibration is weaker: the rattle of a quack.
    return result * (1.0 + 0.35 * numpy.sin(0.5 * phase))


def quack(length, height, seed):
    """One "wack": the beak opens fast, holds, and snaps shut."""
    times = seconds(length)
    t = times / length
    pitch = height * contour(t, [(0, 0.78), (0.18, 1.08), (0.5, 1.0), (1, 0.66)])
    beak = contour(t, [(0, 0.1), (0.25, 1.0), (0.65, 0.9), (1, 0.2)])
    formants = [(550 + 550 * beak, 150, 0.8), (1450 + 650 * beak, 220, 1.0),
                (2800 + 300 * beak, 320, 0.7), (4200, 600, 0.3)]
    loudness = contour(t, [(0, 0), (0.08, 0.8), (0.35, 1.0), (0.75, 0.7), (1, 0)])
    return voiced(times, pitch, formants, 0.02, seed) * loudness


def duck():
    first, second = quack(0.27, 300, 1), quack(0.23, 262, 2)
    result = numpy.zeros(round(0.56 * RATE))
    result[:len(first)] += first
    at = round(0.31 * RATE)
    result[at:at + len(second)] += 0.8 * second
    return faded(numpy.tanh(2.0 * result / numpy.abs(result).max()))


def bang():
    """A cork out of a toy cannon: a thump that falls, a puff of air, a pop that rises."""
    times = seconds(0.5)
    thump = numpy.sin(2 * numpy.pi * numpy.cumsum(62 + 240 * numpy.exp(-times / 0.035)) / RATE)
    thump *= numpy.exp(-times / 0.11)
    air = band(numpy.random.default_rng(3).standard_normal(len(times)), 350, 2600) * numpy.exp(-times / 0.055)
    pop = numpy.sin(2 * numpy.pi * numpy.cumsum(420 + 900 * numpy.minimum(times / 0.05, 1.0)) / RATE)
    pop *= numpy.exp(-times / 0.022)
    return faded(numpy.tanh(2.2 * (thump + 0.9 * air / numpy.abs(air).max() + 0.7 * pop)), start=0.0006)


def engine():
    """A loop of 3.2 seconds, about one when played three times as fast: 30 firings a second in the file, 90 to 120 as
    heard."""
    firings, length = 96, 3.2
    random = numpy.random.default_rng(4)
    signal = numpy.zeros(round(length * RATE))
    spacing = len(signal) // firings
    # Four cylinders that are never quite alike give the loop its putter; a little chance keeps it from sounding like a
    # tone.
    cylinder = numpy.array([1.0, 0.78, 0.92, 0.7])
    for firing in range(firings):
        at = firing * spacing + round(random.normal(0, 0.006 * spacing))
        strength = cylinder[firing % 4] * (1.0 + random.normal(0, 0.05))
        age = numpy.arange(spacing * 3) / RATE
        pulse = (numpy.exp(-age / 0.011) * numpy.sin(2 * numpy.pi * 62 * age)
                 + 0.8 * numpy.exp(-age / 0.008) * numpy.sin(2 * numpy.pi * 190 * age + 0.5)
                 + 0.4 * numpy.exp(-age / 0.005) * numpy.sin(2 * numpy.pi * 430 * age + 1.0)
                 + 0.12 * numpy.exp(-age / 0.004) * random.standard_normal(len(age)))
        numpy.add.at(signal, (at + numpy.arange(len(pulse))) % len(signal), strength * pulse)
    signal = band(signal, 25, 1500)
    return numpy.tanh(1.6 * signal / numpy.abs(signal).max())


target = sys.argv[1]
save(target + "/duck.wav", duck(), 0.35)
save(target + "/bang.wav", bang(), 0.16)
save(target + "/engine.wav", engine(), 0.07)
