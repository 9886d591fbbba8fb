# SPDX-License-Identifier: Apache-2.0
"""The graphical host on a stage of its own: settings in a temporary folder, a window manager, keys, pictures and an ear.

Wants an X server, a message bus of its own and a virtual sound card whose second sink, "sink2", is the tested device."""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import threading
import time

PATIENCE_SECONDS = 60  # on a machine that others keep busy


class Failure(Exception):
    """What a person would complain of."""


def wait_until(what, condition, seconds=PATIENCE_SECONDS):
    """The first true answer of `condition`; what it raises counts as no answer, but for a failure."""
    deadline = time.monotonic() + seconds
    last = None
    while True:
        try:
            answer = condition()
            if answer:
                return answer
        except Failure:
            raise
        except Exception as error:  # an element that vanished while it was read
            last = error
        if time.monotonic() > deadline:
            raise Failure(what + (f" ({last})" if last else ""))
        time.sleep(0.05)


class Ear:
    """What a device plays, told by the program that also hears for a run with nobody there."""

    def __init__(self, bundle, source, language):
        self.sounds = []
        self._process = subprocess.Popen(
            [bundle / "audio_listener", "--source", source, "--clips", bundle / "audio_files", "--language", language],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        if json.loads(self._process.stdout.readline())["event"] != "ready":
            raise Failure("the ear does not get ready")
        threading.Thread(target=self._listen, daemon=True).start()

    def _listen(self):
        for line in self._process.stdout:
            event = json.loads(line)
            if event["event"] in ("digit", "sound", "lost"):
                self.sounds.append(event)

    def digits_after(self, count):
        """The three digits heard after the first `count` sounds, once they are over."""
        wait_until(f"no three digits are heard but {self.sounds[count:]}", lambda: len(self.sounds) >= count + 3)
        heard = self.sounds[count:count + 3]
        if any("digit" not in sound for sound in heard):
            raise Failure(f"a sound is no digit: {heard}")
        return heard

    def close(self):
        self._process.stdin.close()
        self._process.wait()


class Stage:
    def __init__(self, program, pictures):
        self.program = pathlib.Path(program).resolve()
        self.bundle = self.program.parent
        self.pictures = pathlib.Path(pictures)
        self.pictures.mkdir(parents=True, exist_ok=True)
        for old in self.pictures.glob("*.*"):
            old.unlink()
        self.work = pathlib.Path(tempfile.mkdtemp())
        self.log = self.work / "log"
        self.ear = None
        self._host = None
        self._steps = 0
        for name in ("CONFIG", "DATA", "STATE", "CACHE"):
            os.environ[f"XDG_{name}_HOME"] = str(self.work / name.lower())
        os.environ["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        self._manager = None
        self._managed = self.work / "managed"
        wait_until("no window manager starts", self._is_managed)

    def _is_managed(self):
        """Starts the window manager again where it did not find the display, and ended."""
        if self._manager is None or self._manager.poll() is not None:
            self._manager = subprocess.Popen(["openbox", "--startup", f"touch {self._managed}"], stderr=subprocess.DEVNULL)
        return self._managed.exists()

    def start(self, *options, program=None):
        with open(self.log, "w", encoding="utf-8") as log:
            self._host = subprocess.Popen([program or self.program, *options], cwd=self.work, stdout=log, stderr=log)

    def listen(self, language="en_US"):
        self.ear = Ear(self.bundle, "Monitor of Speakers", language)

    def is_running(self):
        return self._host is not None and self._host.poll() is None

    def end_code(self):
        """Of the host, which has been asked to end."""
        wait_until("the host does not end", lambda: not self.is_running())
        return self._host.returncode

    @staticmethod
    def press(*keys):
        subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)

    @staticmethod
    def type(text):
        subprocess.run(["xdotool", "type", "--clearmodifiers", "--delay", "20", text], check=True)

    def picture(self, name):
        subprocess.run(["import", "-window", "root", self.numbered(f"{name}.png")], check=True)

    def numbered(self, name):
        """A file among the pictures; they sort in the order of their making."""
        self._steps += 1
        return self.pictures / f"{self._steps:02}-{name}"

    def crop(self, extents, margin=4):
        """The pixels of a place on the screen, with what may be drawn around it."""
        x, y, width, height = extents
        x, y = max(0, x - margin), max(0, y - margin)
        place = f"{width + 2 * margin}x{height + 2 * margin}+{x}+{y}"
        return subprocess.run(["import", "-window", "root", "-crop", place, "rgb:-"], check=True, capture_output=True).stdout

    @staticmethod
    def level():
        told = subprocess.run(["pactl", "get-sink-volume", "sink2"], check=True, capture_output=True, text=True).stdout
        return int(told.split("%")[0].split()[-1])

    @staticmethod
    def set_level(percent):
        subprocess.run(["pactl", "set-sink-volume", "sink2", f"{percent}%"], check=True)

    @staticmethod
    def stream_count(kind):
        told = subprocess.run(["pactl", "list", "short", kind], check=True, capture_output=True, text=True).stdout
        return len(told.splitlines())

    def log_text(self):
        return self.log.read_text(encoding="utf-8", errors="replace") if self.log.exists() else ""

    def close(self):
        if self.ear is not None:
            self.ear.close()
        for process in (self._host, self._manager):
            if process is not None and process.poll() is None:
                process.kill()
                process.wait()
        shutil.rmtree(self.work, ignore_errors=True)


def play(stage, scenes):
    """Runs `scenes`, a function, on `stage`; the exit code of the test."""
    began = time.monotonic()
    try:
        scenes()
    except Exception as error:
        stage.picture("failed")
        sys.stderr.write(stage.log_text()[-20000:])
        print(f"FAIL: {error}", file=sys.stderr)
        if not isinstance(error, Failure):
            raise
        return 1
    finally:
        stage.close()
    print(f"as expected, in {time.monotonic() - began:.0f} s")
    return 0
