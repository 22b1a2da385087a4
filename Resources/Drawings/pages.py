"""The scenes that fill the onboarding pages and the subscription offers."""

from functools import partial

import paths
import scenery
from canvas import Drawing
from food import CATEGORIES
from people import Pose, bust, front, look, side

REGIONS = ("arab", "asia", "europe", "latina", "usa")
# The dishes on the table of each region, as numbers of food.CATEGORIES; the first one is in the middle.
TABLES = {"arab": (84, 74, 81), "asia": (62, 67, 66), "europe": (59, 71, 78), "latina": (79, 81, 75),
          "usa": (65, 76, 85)}
WIDTH, HEIGHT = 320, 360


def _team(region):
    """Page 1: two people ready to train."""
    d = Drawing(WIDTH, HEIGHT)
    scenery.landscape(d, region, horizon=262)
    scenery.shadow(d, 110, 328, 44)
    scenery.shadow(d, 208, 334, 42)
    with d.placed(110, 322, 1.55):
        front(d, look(True, region), Pose((150, 170), (48, 14)))
    with d.placed(208, 328, 1.5):
        ends = front(d, look(False, region, legs="tunic" if region == "arab" else "long"),
                     Pose((46, 16), (30, 120)))
        scenery.dumbbell(d, *ends["right"], turn=20, scale=0.9, colour="red")
    return d


def _coach(region):
    """Page 2: a chat with the coach, on the screen of a phone."""
    arab = region == "arab"
    d = Drawing(WIDTH, HEIGHT)
    d.fade(*(("#FFF4DC", "#F8CF8C") if arab else ("#EEF1FF", "#C9D4FF")))
    for cx, cy, r in ((40, 70, 60), (290, 260, 80)):
        d.add(paths.ellipse(cx, cy, r), "#FFFFFF", opacity=0.35)
    d.add(paths.rect(88, 34, 144, 292, 24), "night")
    d.add(paths.rect(96, 44, 128, 272, 16), "#E9F7F4" if arab else "#FFFFFF")
    if arab:
        d.add("M112 198V118C112 88 146 84 160 62C174 84 208 88 208 118V198Z", "#FBD9A0")
    else:
        d.add(paths.ellipse(160, 130, 56), "#CFE2FF")
    bust(d, look(True, "arab") if arab else look(False, "plain"), 160, 198, 1.25)
    d.add(paths.rect(96, 198, 128, 118, 0), "#FFFFFF")
    d.draw("R:{a} 110 212 76 26 11;R:mist 134 246 76 26 11;R:{a} 110 280 58 22 11;"
           "l:white~4 122 225 172 225;l:grey~4 148 259 196 259;l:white~4 122 291 154 291",
           a="teal" if arab else "blue")
    for x, y, colour, glyph in ((62, 150, "orange", "dumbbell"), (258, 120, "green", "apple"),
                                (262, 226, "pink", "pulse"), (58, 252, "violet", "calendar")):
        scenery.badge(d, x, y, 27, colour, glyph)
    return d


def _meal(region):
    """Page 3: a well laid table."""
    d = Drawing(WIDTH, HEIGHT)
    scenery.landscape(d, region, horizon=252)
    male = region in ("arab", "asia", "usa")
    with d.placed(160, 428, 2.1):
        ends = front(d, look(male, region), Pose((52, 118), (52, 118)))
    for key in ("left", "right"):
        x, y = 160 + ends[key][0] * 2.1, 428 + ends[key][1] * 2.1
        tool = "l:slate~4 0 10 0 -40;p:slate~3.5 M-8 -58V-46A8 8 0 0 0 8 -46V-58M0 -58V-46" if key == "left" \
            else "l:slate~4 0 10 0 -30;P:slate M-2 -28V-62C8 -58 9 -40 8 -28Z"
        with d.placed(x, y):
            d.draw(tool)
            d.add(paths.ellipse(0, 0, 9), look(male, region).skin)
    cloth = {"arab": "#0F8B7E", "asia": "#C62F38", "europe": "#F4F5F7", "latina": "#FFC93C",
             "usa": "#2747A8"}[region]
    d.add(paths.rect(0, 296, WIDTH, 64), cloth)
    d.add(f"M0 310H{WIDTH}", None, "#FFFFFF", 4, 0.4, butt=True)
    for n, (x, s) in enumerate(((58, 1.5), (160, 1.9), (262, 1.5))):
        d.add(paths.ellipse(x, 322, 44 * s / 1.5, 10), "#FFFFFF")
        d.add(paths.ellipse(x, 322, 36 * s / 1.5, 7), "#E4E7EC")
        with d.placed(x - 24 * s, 322 - 44 * s, s):
            d.draw(CATEGORIES[TABLES[region][(1, 0, 2)[n]]][1])
    return d


def _goal(region):
    """Page 4: the goal is reached."""
    d = Drawing(WIDTH, HEIGHT)
    scenery.landscape(d, region, horizon=282)
    d.add("M-10 250C70 240 90 190 160 180S250 120 330 60", None, "#FFFFFF", 7, 0.85)
    for x, y in ((78, 229), (160, 180), (250, 122)):
        d.add(paths.ellipse(x, y, 9), "#FFFFFF")
        d.add(paths.ellipse(x, y, 5), "orange")
    male = region in ("europe", "latina")
    scenery.shadow(d, 150, 336, 70)
    with d.placed(136, 212, 1.8):
        side(d, look(male, region), 12, (40, 130), (-50, 40), (62, -12), (-28, -78))
    d.draw("l:slate~6 274 338 274 190;P:white M274 192H318V232H274Z;"
           "P:night M274 192H285V202H274ZM296 192H307V202H296ZM285 202H296V212H285ZM307 202H318V212H307Z"
           "M274 212H285V222H274ZM296 212H307V222H296ZM285 222H296V232H285ZM307 222H318V232H307Z")
    return d


def _offer(male, region):
    """A trainer down to the thighs, in front of the landscape of the region."""
    d = Drawing(240, 280)
    scenery.landscape(d, region, 214)
    with d.placed(120, 336, 1.92):
        if male:
            pose = Pose((40, -38), (22, 158))
        else:
            pose = Pose((24, 128), (42, -40))
        who = look(male, region)
        ends = front(d, who, pose)
        if male:
            scenery.dumbbell(d, *ends["right"], turn=8, scale=0.95)
        else:
            x, y = ends["left"]
            d.draw(f"R:sky {x - 5} {y - 16} 10 26 4;R:blue {x - 3.5} {y - 21} 7 6 1.5;"
                   f"R:blue {x - 5} {y - 4} 10 5")
        x, y = ends["right" if male else "left"]
        d.add(paths.ellipse(x, y, 5), who.skin)
    return d


def pictures():
    """name -> function giving its drawing"""
    result = {}
    for region in REGIONS:
        for page, function in ((1, _team), (3, _meal), (4, _goal)):
            result[f"onboarding.{page}.{region}"] = partial(function, region)
    result["onboarding.2.arab"] = partial(_coach, "arab")
    result["onboarding.2"] = partial(_coach, "plain")
    for male, sex, regions in ((True, "man", ("arab", "asia", "usa")), (False, "woman", ("arab", "asia", "latina", "usa"))):
        for region in regions:
            result[f"subscription_{sex}.{region}"] = partial(_offer, male, region)
        result[f"subscription_{sex}"] = partial(_offer, male, "plain")
    return result
