"""Sound as an array of floats, one row a sample and one column a channel, and how loud it is."""

import re
import subprocess
import wave
from typing import NamedTuple

import numpy as np

RATE = 44100  # samples a second, of every file
MOMENT = 0.4  # seconds, the window of momentary loudness


class Loudness(NamedTuple):
    momentary: float  # highest momentary loudness, LUFS
    integrated: float  # LUFS
    true_peak: float  # dBTP


def decibels(amplitude):
    return 20 * np.log10(max(amplitude, 1e-9))


def read(path):
    """The samples of a WAV or MP3 file in two channels."""
    command = ["ffmpeg", "-nostdin", "-v", "error", "-i", path, "-f", "f32le", "-ac", "2", "-ar", str(RATE), "-"]
    return np.frombuffer(subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout, "<f4").reshape(-1, 2)


def write(path, samples):
    with wave.open(str(path), "wb") as file:
        file.setnchannels(2)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(np.round(samples * 32767).astype("<i2").tobytes())


def loudness(samples):
    """Measured by ffmpeg, with silence around the samples so that one window holds the whole of a short sound."""
    silence = np.zeros((int(MOMENT * RATE), 2))
    command = ["ffmpeg", "-nostats", "-f", "f32le", "-ac", "2", "-ar", str(RATE), "-i", "-", "-f", "null"]
    command += ["-af", "ebur128=peak=true:metadata=1,ametadata=print:key=lavfi.r128.M:file=-", "-"]
    padded = np.concatenate([silence, samples, silence]).astype("<f4").tobytes()
    result = subprocess.run(command, check=True, input=padded, capture_output=True)
    moments = re.findall(r"r128\.M=(\S+)", result.stdout.decode())
    summary = result.stderr.decode().rpartition("Summary:")[2]
    integrated, peak = (float(re.search(key + r":\s+(\S+)", summary)[1]) for key in ("I", "Peak"))
    return Loudness(max(map(float, moments)), integrated, peak)
