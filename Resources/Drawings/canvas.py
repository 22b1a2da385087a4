"""A drawing: a size and a list of painted outlines, with a small text notation.

The notation is one operation per line (or between ";"):

    CODE[:colour][/opacity][~width] numbers or path

    c C  circle            cx cy r             (small letter: stroked, capital: filled)
    e E  ellipse           cx cy rx ry
    r R  rectangle         x y w h [radius]
    l L  polyline/polygon  x1 y1 x2 y2 ...     g: closed and stroked
    p P  path              path text (see paths.parse)
    s S  star              cx cy outer inner [points [turn]]    (radii; turn in degrees)
    u    glyph             name [x y [scale [turn]]]

A colour is #RRGGBB, a key of the palette, or absent: the drawing's ink. The width is that of the stroke, by default the
drawing's pen; a filled shape is stroked only if its operation gives a width.
"""

import re
from contextlib import contextmanager
from dataclasses import dataclass

import paths
from palette import COLOURS

_HEAD = re.compile(r"^([cCeErRlLgpPsSu])(?::([^/~]+))?(?:/([\d.]+))?(?:~([\d.]+))?$")
_SHAPES = {"c": paths.ellipse, "e": paths.ellipse, "r": paths.rect, "s": paths.star}
GLYPHS = {}  # name -> operations; glyphs.py fills it


@dataclass
class Gradient:
    """Two colours along a line in drawing coordinates."""
    first: str
    last: str
    line: tuple


@dataclass
class Item:
    """An outline (see paths.py) with its paint, in drawing coordinates."""
    outline: list
    fill: object = None     # "#RRGGBB" or a Gradient
    stroke: str = None      # "#RRGGBB"
    width: float = 0        # of the stroke
    opacity: float = 1
    butt: bool = False      # the stroke ends at its end points, without round caps


class Drawing:
    def __init__(self, width, height=None):
        self.width, self.height = width, height or width
        self.items = []
        self.matrix = paths.IDENTITY    # from the coordinates of the next operation to the drawing's
        self.ink = "ink"        # default colour
        self.pen = 2            # default stroke width
        self.body = None        # when set, fills the closed stroked shapes of the notation
        self.template = False   # whether the application tints the picture

    @contextmanager
    def placed(self, x=0, y=0, scale=1, turn=0):
        """Within the `with` statement, what is drawn is turned, scaled and moved to x, y."""
        before = self.matrix
        self.matrix = paths.multiply(before, paths.placing(x, y, scale, turn))
        try:
            yield self
        finally:
            self.matrix = before

    def colour(self, name):
        name = name or self.ink
        return name if name.startswith("#") else COLOURS[name]

    def add(self, outline, fill=None, stroke=None, width=2, opacity=1, butt=False):
        if isinstance(outline, str):
            outline = paths.parse(outline)
        if isinstance(fill, Gradient):
            x0, y0, x1, y1 = fill.line
            fill = Gradient(self.colour(fill.first), self.colour(fill.last),
                            (*paths.apply(self.matrix, x0, y0), *paths.apply(self.matrix, x1, y1)))
        elif fill:
            fill = self.colour(fill)
        self.items.append(Item(paths.mapped(outline, self.matrix), fill,
                               self.colour(stroke) if stroke else None,
                               width * paths.factor(self.matrix), opacity, butt))

    def fade(self, first, last, outline=None, line=None):
        """Fills an outline, by default the whole drawing, with a gradient, by default from the drawing's top to its bottom."""
        outline = outline or paths.rect(0, 0, self.width, self.height)
        self.add(outline, Gradient(first, last, line or (0, 0, 0, self.height)))

    def draw(self, text, **names):
        """Draws operations in the notation above; the values of `names` replace {name} in the text."""
        if names:
            text = text.format(**names)
        for line in re.split(r"[;\n]", text):
            line = line.strip()
            if line:
                self._operation(line)

    def _operation(self, line):
        head, _, rest = line.partition(" ")
        match = _HEAD.match(head)
        if not match:
            raise ValueError(f"bad operation {line!r}")
        code, colour, opacity, width = match.groups()
        if code == "u":
            name, *n = rest.split()
            n = [float(v) for v in n]
            place = dict(zip(("x", "y", "scale", "turn"), n))
            ink = self.ink
            self.ink = colour or ink
            with self.placed(**place):
                self.draw(GLYPHS[name])
            self.ink = ink
            return
        low = code.lower()
        if low == "p":
            outline = paths.parse(rest)
        else:
            n = [float(v) for v in rest.split()]
            outline = _SHAPES[low](*n) if low in _SHAPES else paths.polyline(n, closed=code != "l")
        name = colour or self.ink
        if code.islower():
            body = self.body if outline[-1] == ("Z",) else None
            self.add(outline, body, name, float(width or self.pen), float(opacity or 1))
        else:
            self.add(outline, name, name if width else None, float(width or 0), float(opacity or 1))
