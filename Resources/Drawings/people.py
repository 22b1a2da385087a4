"""People: one jointed figure seen from the front or back, one seen from the side, and busts.

Seen from the front, a figure stands with its feet at (0, 0) and is 152 units tall; from the side, its
hip is at (0, 0). A limb has two angles, of its upper and its lower part, in degrees from hanging
straight down: outwards for the front view, forwards for the side view.
"""

import math
from dataclasses import dataclass, replace

import paths
from palette import REGION_COLOURS, darker


@dataclass
class Look:
    """The look of a person: colours, clothes, hair and build."""
    male: bool
    skin: str
    shade: str                  # of the skin
    hair: str
    top: str
    bottom: str
    shoe: str
    style: str = "short"        # of the hair: short, crop, side, curly, long, bob, tail, waves; or scarf
    beard: bool = False
    sleeves: str = "none"       # none, short, long
    legs: str = "long"          # long, short, tunic
    wide: float = 1             # factor of the trunk's width
    limb: float = 1             # factor of the limbs' width
    belly: float = 0            # added to half the waist's width, in the side view to the trunk's; may be negative
    trim: str = None            # colour of a stripe, scarf or hair band


# The hair of men and of women. The names of pictures of training targets say "ar" for "arab".
STYLES = {"plain": ("short", "tail"), "arab": ("crop", "scarf"), "asia": ("side", "bob"),
          "europe": ("side", "long"), "latina": ("curly", "waves"), "usa": ("crop", "curly"),
          "ru": ("short", "tail"), "ar": ("crop", "scarf")}


def look(male, region="plain", **changes):
    """The look of a man or woman of a region, with other values for some members of Look."""
    colours = REGION_COLOURS["arab" if region == "ar" else region]
    person = Look(male, *(colours[k] for k in ("skin", "shade", "hair", "top", "bottom", "shoe")),
                  style=STYLES[region][not male], sleeves="short" if male else "none",
                  legs="short" if male else "long", trim=colours["accent"])
    if region in ("arab", "ar"):
        person = replace(person, beard=male, sleeves="long", legs="long" if male else "tunic",
                         trim=colours["accent"] if male else "#A8415B")
    return replace(person, **changes)


def _limb(d, points, width, colour, covered, cloth):
    """A limb of straight pieces. Clothes cover all of it if `covered` is 1, otherwise that share of its first piece."""
    numbers = [v for p in points for v in p]
    d.add(paths.polyline(numbers), None, colour, width)
    if covered <= 0:
        return
    if covered >= 1:
        d.add(paths.polyline(numbers), None, cloth, width + 1.2)
        return
    (x0, y0), (x1, y1) = points[:2]
    d.add(paths.polyline([x0, y0, x0 + (x1 - x0) * covered, y0 + (y1 - y0) * covered]),
          None, cloth, width + 1.6)


def _chain(x, y, angles, lengths, side=1):
    """The joints of a limb that begins at x, y; `side` is -1 for the left one in the front view."""
    points = [(x, y)]
    for angle, length in zip(angles, lengths):
        a = math.radians(angle)
        x, y = x + side * math.sin(a) * length, y + math.cos(a) * length
        points.append((x, y))
    return points


# What Look.sleeves and Look.legs cover, see _limb.
SLEEVE = {"none": 0, "short": 0.55, "long": 1}
LEG = {"long": 1, "short": 0.75, "tunic": 1}


@dataclass
class Pose:
    """The two angles of each limb in the front view."""
    left: tuple = (12, 6)       # the arm on the left of the picture
    right: tuple = (12, 6)
    left_leg: tuple = (4, 2)
    right_leg: tuple = (4, 2)


def front(d, who, pose=Pose(), back=False):
    """Draws the figure seen from the front (or back). Returns where its hands ("left", "right") and feet ("left_foot",
    "right_foot") are."""
    # Half the widths of the trunk.
    shoulder = (20.5 if who.male else 16.5) * who.wide
    waist = (15.5 if who.male else 11.5) * who.wide + who.belly
    hip = (14.5 if who.male else 15.5) * who.wide + who.belly * 0.7
    arm, leg = (9.5 if who.male else 7.5) * who.limb, (13.5 if who.male else 12.5) * who.limb
    ends = {}
    if not back:
        hair_behind(d, who, 0, -139)
    for side, angles, key in ((-1, pose.left_leg, "left"), (1, pose.right_leg, "right")):
        points = _chain(side * (hip - leg / 2), -72, angles, (34, 32), side)
        _limb(d, points, leg, who.skin, LEG[who.legs], who.bottom)
        x, y = points[-1]
        d.add(paths.parse(f"M{x - side * 6} {y + 6}C{x - side * 7} {y - 3} {x + side * 3} {y - 5} "
                          f"{x + side * 6} {y}C{x + side * 11} {y + 1} {x + side * 12} {y + 6} "
                          f"{x + side * 11} {y + 6}Z"), who.shoe, "#9AA1AD", 0.8)
        ends[key + "_foot"] = (x, y)
    hem = -40 if who.legs == "tunic" else -70
    spread = hip + (5 if who.legs == "tunic" else 0.5)
    d.add(f"M{-shoulder * 0.45} -124C{-shoulder * 0.8} -123 {-shoulder} -121 {-shoulder} -114"
          f"C{-shoulder} -104 {-waist} -102 {-waist} -92C{-waist} -84 {-hip} -82 {-spread} {hem}"
          f"H{spread}C{hip} -82 {waist} -84 {waist} -92C{waist} -102 {shoulder} -104 "
          f"{shoulder} -114C{shoulder} -121 {shoulder * 0.8} -123 {shoulder * 0.45} -124Z", who.top)
    if who.legs != "tunic":
        d.add(f"M{-hip * 1.02} -79C{-hip * 0.5} -77 {hip * 0.5} -77 {hip * 1.02} -79L{hip + 0.5} -68"
              f"Q0 -62 {-hip - 0.5} -68Z", who.bottom)
    d.add(paths.rect(-4.5, -131, 9, 11, 4), who.shade)
    if who.sleeves == "none" and not back:
        d.add("M-7 -124.5C-6 -116 6 -116 7 -124.5Z", who.skin)
    elif not back:
        d.add("M-6 -124.5C-5 -119 5 -119 6 -124.5Z", who.skin)
    if who.trim and not back and who.legs != "tunic":
        d.add(f"M{-waist * 0.45} -104L0 -98L{waist * 0.45} -104", None, who.trim, 2.2)
    for side, angles, key in ((-1, pose.left, "left"), (1, pose.right, "right")):
        points = _chain(side * (shoulder - arm / 2 + 0.5), -117, angles, (26, 24), side)
        _limb(d, points, arm, who.skin, SLEEVE[who.sleeves], who.top)
        x, y = points[-1]
        if who.sleeves == "long":
            d.add(paths.ellipse(x, y, arm * 0.55), who.skin)
        ends[key] = (x, y)
    head(d, who, 0, -139, back)
    return ends


def head(d, who, x, y, back=False, r=11.5):
    """A head of radius r with the hair, scarf and face of the look."""
    with d.placed(x, y, r / 11.5):
        if back:
            _hair_back(d, who)
            return
        if who.style != "scarf":
            d.add(paths.ellipse(-11, 1.5, 2.2, 2.8), who.shade)
            d.add(paths.ellipse(11, 1.5, 2.2, 2.8), who.shade)
        d.add(paths.ellipse(0, 0.5, 11, 12.3), who.skin)
        _hair(d, who)
        ink = "#2A1B16"
        d.add(paths.ellipse(-4.2, 0.8, 1.25, 1.5), ink)
        d.add(paths.ellipse(4.2, 0.8, 1.25, 1.5), ink)
        d.add("M-6.4 -2.6Q-4.3 -4 -2.4 -2.8M6.4 -2.6Q4.3 -4 2.4 -2.8", None, who.hair, 1)
        d.add("M0 2V4.2", None, who.shade, 1.4)
        d.add("M-3.2 6.6Q0 9.4 3.2 6.6", None, "#B4453F", 1.4)


def hair_behind(d, who, x, y, r=11.5):
    with d.placed(x, y, r / 11.5):
        if who.style in ("long", "waves"):
            d.add("M-12.5 -2C-13 -16 13 -16 12.5 -2C13 8 15 16 13 23C6 25 -6 25 -13 23C-15 16 -13 8 "
                  "-12.5 -2Z", who.hair)
            if who.style == "waves":
                for cx, cy in ((-13, 6), (13, 6), (-13.5, 14), (13.5, 14), (-11, 21), (11, 21)):
                    d.add(paths.ellipse(cx, cy, 4.6), who.hair)
        elif who.style == "tail":
            d.add("M4 -11C16 -16 22 -4 18 10C15 6 14 0 9 -4Z", who.hair)
        elif who.style == "bob":
            d.add("M-13 0C-14 -17 14 -17 13 0L13.5 11C9 14 -9 14 -13.5 11Z", who.hair)
        elif who.style == "curly" and not who.male:
            for cx, cy in ((-12, -4), (12, -4), (-8, -11), (8, -11), (0, -13.5), (-13.5, 4), (13.5, 4)):
                d.add(paths.ellipse(cx, cy, 6.6), who.hair)


def _hair(d, who):
    hair = who.hair
    if who.beard:
        d.add("M-11 1C-11 11 -6 14.5 0 14.5S11 11 11 1C9.5 4 8 5.4 4.5 4.6C2 4 -2 4 -4.5 4.6"
              "C-8 5.4 -9.5 4 -11 1Z", hair)
    style = who.style
    if style == "scarf":
        cloth = who.trim or who.top
        d.add("M0 -14.5C-10 -14.5 -14 -7 -13 2C-12.6 8 -14 13 -17 18C-10 22 10 22 17 18C14 13 12.6 8 "
              "13 2C14 -7 10 -14.5 0 -14.5Z", cloth)
        d.add(paths.ellipse(0, 1, 9, 11), who.skin)
        d.add("M10 6C9 13 3 17 -6 18.5M-10 8C-8 13 -5 15.4 -1 16.6", None, "#FFFFFF", 0.8, 0.45)
    elif style == "short":
        d.add("M-11.6 0C-13 -10 -7 -14.5 0 -14.5S13 -10 11.6 0C10.5 -3 9.8 -4.8 9 -6C3 -5 -3 -5.5 -6 -8"
              "C-8 -6 -10 -4 -11.6 0Z", hair)
    elif style == "crop":
        d.add("M-11.3 -1C-12 -9.5 -7 -13.4 0 -13.4S12 -9.5 11.3 -1C10.6 -4 10 -5.6 9 -6.6C4 -7.8 -4 -7.8 "
              "-9 -6.6C-10 -5.6 -10.6 -4 -11.3 -1Z", hair)
    elif style == "side":
        d.add("M-11.6 1C-13.5 -10 -7 -15 1 -15C9 -15.5 14 -9 11.6 1C11 -3 10 -6 8 -7.5C2 -4 -5 -3.6 -9.4 "
              "-5C-10.4 -3.5 -11 -1.5 -11.6 1Z", hair)
    elif style == "curly":
        for cx, cy in ((-9, -7), (-5, -11), (0, -12.5), (5, -11), (9, -7), (-2, -8.6), (3.5, -8.4)):
            d.add(paths.ellipse(cx, cy, 4.4), hair)
    elif style in ("tail", "long", "waves"):
        d.add("M-12 2C-13.5 -10 -7 -14.6 0 -14.6S13.5 -10 12 2C11 -3 7 -6.5 0 -8.6C-5 -6 -10 -3 -12 2Z",
              hair)
    elif style == "bob":
        d.add("M-12.8 4C-14.5 -10 -8 -15 0 -15S14.5 -10 12.8 4C11.5 0 10.8 -3 10 -5C4 -4 -4 -4 -10 -5"
              "C-10.8 -3 -11.5 0 -12.8 4Z", hair)


def _hair_back(d, who):
    d.add(paths.ellipse(0, 0.5, 11, 12.3), who.skin)
    if who.style == "scarf":
        d.add("M0 -14C-10 -14 -14 -7 -13 2C-12.6 8 -14 13 -17 18C-10 22 10 22 17 18C14 13 12.6 8 13 2"
              "C14 -7 10 -14 0 -14Z", who.trim or who.top)
        return
    low = 4 if who.male else 7
    d.add(f"M-11.8 {low}C-13.5 -11 -7 -14.5 0 -14.5S13.5 -11 11.8 {low}C7 {low + 5} -7 {low + 5} "
          f"-11.8 {low}Z", who.hair)
    if not who.male:
        d.add("M-4 -4C-6 8 -5 18 0 27C5 18 6 8 4 -4Z", who.hair)
        d.add("M-3.8 -1H3.8", None, who.trim or who.top, 2.6)


def side(d, who, lean=0, near_arm=(20, 60), far_arm=(-20, 30), near_leg=(5, 0), far_leg=(-5, 0),
         nod=0):
    """Draws the figure seen from the side, facing right, with its trunk turned forwards by `lean` degrees and its head by
    `nod` more. Returns where its hands, feet and head are, by name."""
    trunk = (18 if who.male else 15) * who.wide + who.belly
    arm, leg = (9.5 if who.male else 7.5) * who.limb, (14 if who.male else 13) * who.limb
    a = math.radians(lean)
    sx, sy = math.sin(a) * 44, -math.cos(a) * 44    # the shoulder
    ends = {}

    def one_leg(angles, colour, skin, key):
        points = _chain(0, 0, angles, (34, 32))
        _limb(d, points, leg, skin, LEG[who.legs], colour)
        x, y = points[-1]
        with d.placed(x, y, 1, -(angles[1])):
            d.add("M-6 6.5C-7.5 0 -6 -4 0 -4C4 -3 8 1 13 2C15 3 15 6.5 14 6.5Z", who.shoe, "#9AA1AD", 0.8)
        ends[key] = (x, y)

    def one_arm(angles, cloth, skin, key):
        points = _chain(sx, sy + 4, angles, (25, 23))
        _limb(d, points, arm, skin, SLEEVE[who.sleeves], cloth)
        x, y = points[-1]
        d.add(paths.ellipse(x, y, arm * 0.56), skin)
        ends[key] = (x, y)

    dark = darker(who.bottom)
    one_arm(far_arm, darker(who.top), who.shade, "far_hand")
    one_leg(far_leg, dark, who.shade, "far_foot")
    one_leg(near_leg, who.bottom, who.skin, "near_foot")
    d.add(paths.polyline([0, -3, sx * 0.93, sy * 0.93]), None, who.top, trunk)
    d.add(paths.polyline([0, 0, sx * 0.06, sy * 0.06]), None, who.bottom, trunk * 0.97)
    if who.legs == "tunic":
        d.add(paths.polyline([0, -4, sx * 0.3, sy * 0.3]), None, who.top, trunk * 1.06)
    hx, hy = math.sin(a + math.radians(nod)) * 21 + sx, sy - math.cos(a + math.radians(nod)) * 21
    d.add(paths.polyline([sx, sy, sx + (hx - sx) * 0.6, sy + (hy - sy) * 0.6]), None, who.shade, 8.5)
    with d.placed(hx, hy, 1, lean + nod):
        profile(d, who)
    one_arm(near_arm, who.top, who.skin, "near_hand")
    ends["head"] = (hx, hy)
    return ends


def profile(d, who):
    """A head from the side, facing right."""
    if who.style in ("tail", "long", "waves"):
        d.add("M-8 -9C-20 -10 -21 6 -16 15C-13 8 -11 3 -7 1Z", who.hair)
    d.add("M-9.5 -2C-9 -12 8 -13 9.5 -3L12 2.6C12 3.6 10.6 3.8 9.8 4C10 9 8 12 3.5 12C-4 12 -10 8 -9.5 -2Z",
          who.skin)
    if who.style == "scarf":
        cloth = who.trim or who.top
        d.add("M7 -10.5C-3 -16.5 -14 -11 -13.5 1C-13.4 9 -15 13 -18 18C-9 24 2 23 9 18C8 15 7 13 5 12"
              "C1 10 -1 7 0 2C0 -4 3 -7 7 -10.5Z", cloth)
    else:
        d.add("M9.5 -4C8 -15 -14 -18 -12.5 0C-12 4 -10.5 7 -9 8C-6 6 -5 2 -3.5 -2C1 -3 7 -6 9.5 -4Z", who.hair)
        if who.style == "curly":
            for cx, cy in ((-11, -4), (-9, -10), (-3, -13), (4, -11), (-10, 3)):
                d.add(paths.ellipse(cx, cy, 5), who.hair)
        if who.style == "bob":
            d.add("M-12.5 -2C-14 6 -13 10 -11 12C-6 12 -3 8 -3.5 -2Z", who.hair)
        d.add(paths.ellipse(-3, 1.6, 1.9, 2.5), who.shade)
    if who.beard:
        d.add("M-2 4C-1 8 3 6 9.8 6C9.6 11 7 14 2 13.4C-1 13 -3 9 -2 4Z", who.hair)
    d.add(paths.ellipse(5.8, -0.6, 1.2, 1.5), "#2A1B16")
    if not who.beard:
        d.add("M9 7.4Q7.4 8.4 5.8 7.6", None, "#B4453F", 1.3)


def bust(d, who, x, bottom, scale=1):
    """Head and shoulders around x; their straight lower edge is just below `bottom`, where an edge of the picture hides it."""
    with d.placed(x, bottom, scale):
        hair_behind(d, who, 0, -62, 21)
        wide = 42 if who.male else 34
        d.add(f"M{-wide} 2C{-wide} -20 {-wide * 0.6} -26 -10 -31H10C{wide * 0.6} -26 {wide} -20 {wide} 2Z",
              who.top)
        d.add("M-8.5 -48H8.5V-32C8.5 -24 -8.5 -24 -8.5 -32Z", who.shade)
        if who.sleeves == "none":
            d.add("M-20 -28.5C-18 -8 18 -8 20 -28.5L8 -33H-8Z", who.skin)
            d.add("M-8.5 -40H8.5V-32C8.5 -25 -8.5 -25 -8.5 -32Z", who.shade)
        elif who.trim and who.style != "scarf":
            d.add("M-12 -30.5C-9 -20 9 -20 12 -30.5", None, who.trim, 3)
        head(d, who, 0, -62, r=21)
