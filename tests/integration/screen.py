"""An X server of its own, for tests that need two programs with windows, and the hands to use them."""

import os
import subprocess


class Screen:
    """`with Screen() as screen: … Station(environment=screen.environment) …`"""

    def __enter__(self):
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1400x960x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as number:
            display = ":" + number.readline().strip()
        self.environment = {**os.environ, "DISPLAY": display, "QT_QPA_PLATFORM": "xcb"}
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait(10)

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, text=True,
                              capture_output=True).stdout.split()

    def windows(self, title):
        """The visible windows of that title."""
        return self.xdotool("search", "--onlyvisible", "--name", f"^{title}$")

    def key(self, window, key):
        """A key press in a window, or where the focus is."""
        if window:
            self.xdotool("windowfocus", "--sync", window)
        self.xdotool("key", key)

    def close_box(self, window):
        """What a window manager sends when its close box is clicked: the window is asked to close."""
        subprocess.run(["/usr/bin/python3", "-c", CLOSE, str(window)], env=self.environment, check=True)


# WM_DELETE_WINDOW through Xlib, since no window manager runs here.
CLOSE = """
import ctypes, sys
x = ctypes.CDLL("libX11.so.6")
x.XOpenDisplay.restype = ctypes.c_void_p
x.XInternAtom.restype = ctypes.c_ulong
x.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
x.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long, ctypes.c_void_p]
x.XCloseDisplay.argtypes = [ctypes.c_void_p]
class Message(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("message_type", ctypes.c_ulong),
                ("format", ctypes.c_int), ("data", ctypes.c_long * 5), ("padding", ctypes.c_long * 24)]
display = x.XOpenDisplay(None)
message = Message(type=33, display=display, window=int(sys.argv[1]), format=32,
                  message_type=x.XInternAtom(display, b"WM_PROTOCOLS", 0))
message.data[0] = x.XInternAtom(display, b"WM_DELETE_WINDOW", 0)
x.XSendEvent(display, message.window, 0, 0, ctypes.byref(message))
x.XCloseDisplay(display)
"""
