"""The little of X11 that is asked without a program of its own: who owns a selection, and which windows are there."""

import ctypes
import ctypes.util
import dataclasses

_x11 = ctypes.CDLL(ctypes.util.find_library("X11") or "libX11.so.6")
_x11.XOpenDisplay.restype = ctypes.c_void_p
_x11.XOpenDisplay.argtypes = [ctypes.c_char_p]
_x11.XCloseDisplay.argtypes = [ctypes.c_void_p]
_x11.XDefaultRootWindow.restype = ctypes.c_ulong
_x11.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
_x11.XInternAtom.restype = ctypes.c_ulong
_x11.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
_x11.XGetSelectionOwner.restype = ctypes.c_ulong
_x11.XGetSelectionOwner.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
_x11.XGetWindowProperty.argtypes = [
    ctypes.c_void_p, ctypes.c_ulong, ctypes.c_ulong, ctypes.c_long, ctypes.c_long, ctypes.c_int, ctypes.c_ulong,
    ctypes.POINTER(ctypes.c_ulong), ctypes.POINTER(ctypes.c_int), ctypes.POINTER(ctypes.c_ulong),
    ctypes.POINTER(ctypes.c_ulong), ctypes.POINTER(ctypes.c_void_p)]
_x11.XQueryTree.argtypes = [
    ctypes.c_void_p, ctypes.c_ulong, ctypes.POINTER(ctypes.c_ulong), ctypes.POINTER(ctypes.c_ulong),
    ctypes.POINTER(ctypes.POINTER(ctypes.c_ulong)), ctypes.POINTER(ctypes.c_uint)]
_x11.XFree.argtypes = [ctypes.c_void_p]


class _Attributes(ctypes.Structure):
    # XWindowAttributes, as far as map_state.
    _fields_ = [(name, ctypes.c_int) for name in ("x", "y", "width", "height", "border", "depth")] + [
        ("visual", ctypes.c_void_p), ("root", ctypes.c_ulong), ("window_class", ctypes.c_int),
        ("bit_gravity", ctypes.c_int), ("win_gravity", ctypes.c_int), ("backing_store", ctypes.c_int),
        ("backing_planes", ctypes.c_ulong), ("backing_pixel", ctypes.c_ulong), ("save_under", ctypes.c_int),
        ("colormap", ctypes.c_ulong), ("map_installed", ctypes.c_int), ("map_state", ctypes.c_int),
        ("rest", ctypes.c_long * 8)]


_x11.XGetWindowAttributes.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.POINTER(_Attributes)]
_x11.XTranslateCoordinates.argtypes = [
    ctypes.c_void_p, ctypes.c_ulong, ctypes.c_ulong, ctypes.c_int, ctypes.c_int, ctypes.POINTER(ctypes.c_int),
    ctypes.POINTER(ctypes.c_int), ctypes.POINTER(ctypes.c_ulong)]

# A window that vanishes between two questions is an error event, which by default would end the whole process.
_HANDLER = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
_ignore = _HANDLER(lambda display, event: 0)
_x11.XSetErrorHandler(_ignore)

_x11.XSelectInput.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_long]
_x11.XSync.argtypes = [ctypes.c_void_p, ctypes.c_int]
_SUBSTRUCTURE_REDIRECT = 1 << 20
_UNMAPPED, _UNVIEWABLE, _VIEWABLE = 0, 1, 2
_ANY_TYPE = 0


@dataclasses.dataclass(frozen=True)
class Window:
    """A window on the screen: its place in the root's pixels and the process that says it owns it (None: says not).

    `docked`: held by a tray, as the embedding protocol has it, rather than managed or on its own.
    """

    id: int
    x: int
    y: int
    width: int
    height: int
    pid: int | None
    docked: bool


class Display:
    """A connection to an X server. Close it before the server ends: Xlib would end this process with it."""

    def __init__(self, name):
        self._display = _x11.XOpenDisplay(name.encode())
        if not self._display:
            raise OSError(f"the X server {name} does not answer")
        self._root = _x11.XDefaultRootWindow(self._display)

    def close(self):
        if self._display:
            _x11.XCloseDisplay(self._display)
            self._display = None

    def _atom(self, name):
        return _x11.XInternAtom(self._display, name.encode(), False)

    def selection_owner(self, name):
        """The window that owns the selection, 0 for none."""
        return _x11.XGetSelectionOwner(self._display, self._atom(name))

    def cardinal(self, window, name):
        """The first 32-bit value of a property, None where there is none."""
        kind, size = ctypes.c_ulong(), ctypes.c_int()
        count, left, data = ctypes.c_ulong(), ctypes.c_ulong(), ctypes.c_void_p()
        failed = _x11.XGetWindowProperty(
            self._display, window, self._atom(name), 0, 1, False, _ANY_TYPE, ctypes.byref(kind), ctypes.byref(size),
            ctypes.byref(count), ctypes.byref(left), ctypes.byref(data))
        if failed or not data.value:
            return None
        try:
            # Xlib hands 32-bit values over as longs.
            return ctypes.cast(data, ctypes.POINTER(ctypes.c_ulong))[0] if size.value == 32 and count.value else None
        finally:
            _x11.XFree(data)

    def lose_windows(self, lose):
        """Whether windows that want to be shown are kept from it, as by a window manager that overlooks them."""
        _x11.XSelectInput(self._display, self._root, _SUBSTRUCTURE_REDIRECT if lose else 0)
        _x11.XSync(self._display, 1)

    def has_window_manager(self):
        return bool(self.cardinal(self._root, "_NET_SUPPORTING_WM_CHECK"))

    def has_tray(self):
        return bool(self.selection_owner("_NET_SYSTEM_TRAY_S0"))

    def _children(self, window):
        root, parent = ctypes.c_ulong(), ctypes.c_ulong()
        children, count = ctypes.POINTER(ctypes.c_ulong)(), ctypes.c_uint()
        if not _x11.XQueryTree(self._display, window, ctypes.byref(root), ctypes.byref(parent),
                               ctypes.byref(children), ctypes.byref(count)):
            return []
        found = [children[index] for index in range(count.value)]
        if children:
            _x11.XFree(children)
        return found

    def _is_docked(self, window, parent):
        # A window manager's frame is around a window too, but what it manages has a WM_STATE.
        return (parent != self._root and self.cardinal(window, "_XEMBED_INFO") is not None
                and self.cardinal(window, "WM_STATE") is None)

    def windows(self, states=(_VIEWABLE,)):
        """All windows of the tree that are, with all around them, in one of these map states, from the bottom up."""
        waiting, found = [(self._root, None)], []
        while waiting:
            window, parent = waiting.pop(0)
            attributes = _Attributes()
            if not _x11.XGetWindowAttributes(self._display, window, ctypes.byref(attributes)):
                continue
            if attributes.map_state not in states:
                continue
            if window != self._root:
                x, y, child = ctypes.c_int(), ctypes.c_int(), ctypes.c_ulong()
                _x11.XTranslateCoordinates(self._display, window, self._root, 0, 0, ctypes.byref(x), ctypes.byref(y),
                                           ctypes.byref(child))
                found.append(Window(window, x.value, y.value, attributes.width, attributes.height,
                                    self.cardinal(window, "_NET_WM_PID"), self._is_docked(window, parent)))
            waiting.extend((child, window) for child in self._children(window))
        return found

    def embedded_of(self, pid):
        """The windows of that process in a tray, even one that a window manager keeps from the screen."""
        return [window for window in self.windows((_VIEWABLE, _UNVIEWABLE, _UNMAPPED)) if window.pid == pid and window.docked]

    def windows_of(self, pid):
        return [window for window in self.windows() if window.pid == pid]
