"""Pictures of the questionnaire: sex, place, equipment, age, height, weight, build and goal."""

from functools import partial

import paths
import scenery
from canvas import Drawing
from people import Pose, bust, front, look, side

# In this file `region` is "arab" or None, but in _goal "ar" or "ru".

# Background and accent colour for men (True), women (False) and the Arab region.
TINTS = {True: ("#DCE8FF", "#3B7DFF"), False: ("#FFE0EC", "#F2639A"), "arab": ("#FBE6BE", "#0F8B7E")}


def _who(male, region, **changes):
    region = region or "plain"
    if region == "plain" and not male:
        changes = {"top": "#F2639A", "trim": "#FFFFFF", **changes}
    return look(male, region, **changes)


def _drawing(male, region):
    d = Drawing(160)
    scenery.backdrop(d, TINTS["arab" if region else male][0])
    return d


def _arch(d, colour="#F3CD8A"):
    w, h = d.width, d.height
    d.add(f"M{w * .14} {h}V{h * .5}C{w * .14} {h * .3} {w * .4} {h * .24} {w * .5} {h * .06}"
          f"C{w * .6} {h * .24} {w * .86} {h * .3} {w * .86} {h * .5}V{h}Z", colour)


def _sex(male, region):
    d = _drawing(male, region)
    if region:
        _arch(d)
    else:
        d.add(paths.ellipse(80, 84, 62), "#FFFFFF", opacity=0.7)
    bust(d, _who(male, region), 80, 160, 1.45)
    return d


def _age(male):
    d = _drawing(male, None)
    bust(d, _who(male, None), 66, 160, 1.3)
    with d.placed(94, 88, 1.15):
        d.draw("R:white 0 6 48 46 7;R:{c} 0 6 48 14 6;R:{c} 0 14 48 6;l:slate~3.6 12 2 12 10;l:slate~3.6 36 2 36 10",
               c=TINTS[male][1])
        d.draw("l:slate~3 10 30 15 27 15 44;p:slate~3 M24 31C24 26 36 26 36 31C36 35 24 40 24 44H36" if male else
               "p:slate~3 M9 31C9 26 20 26 20 31C20 35 9 40 9 44H20;p:slate~3 M38 28H28V35C36 33 40 37 38 41C36 45 30 45 27 43")
    return d


def _height(male):
    d = _drawing(male, None)
    scenery.shadow(d, 72, 150, 30)
    with d.placed(72, 149, 0.86):
        front(d, _who(male, None))
    d.add(paths.rect(116, 12, 22, 138, 4), "yellow")
    for n in range(12):
        d.add(f"M116 {20 + n * 11}h{12 if n % 3 == 0 else 7}", None, "#9A6B00", 2)
    y = 17 if male else 19
    d.add(f"M50 {y}H134", None, TINTS[male][1], 3)
    return d


def _weight(male):
    d = _drawing(male, None)
    with d.placed(80, 134, 0.8):
        front(d, _who(male, None, wide=1.04), Pose((18, -6), (18, -6)) if male else Pose((30, -35), (30, -35)))
    d.draw("R:slate 42 137 76 14 6;R:white 64 140 32 8 3;l:{c}~2 80 147 86 142", c=TINTS[male][1])
    return d


def _gym(male, region):
    d = Drawing(160)
    arab = bool(region)
    colours = ("#E3EBFB", "#C3D2F2") if male else ("#FDE7F0", "#F3C3D7")
    if arab:
        colours = "#FBEFD8", "#E3C58F"
    scenery.gym(d, 132, *colours)
    scenery.shadow(d, 80, 151, 38)
    with d.placed(80, 151, 0.78):
        if male:
            ends = front(d, _who(male, region), Pose((142, 168), (142, 168), (12, 0), (12, 0)))
            scenery.barbell(d, 0, ends["left"][1], 88, 1.05, "teal" if arab else "red")
        else:
            ends = front(d, _who(male, region), Pose((28, 150), (28, 150), (8, 2), (8, 2)))
            for key in ("left", "right"):
                scenery.dumbbell(d, *ends[key], scale=0.8, colour="teal" if arab else "violet")
    return d


def _home(male, region):
    d = Drawing(160)
    if male:
        scenery.room(d, 122, "#EAF1FF", "#C79A6B")
    elif region:
        scenery.room(d, 122, "#FBE6BE", "#B98752", arch=True)
    else:
        scenery.room(d, 122, "#FFE9E2", "#D8A878")
    if male:
        scenery.mat(d, 78, 148, 58, "blue")
        with d.placed(72, 112, 0.74):
            side(d, _who(male, region), 0, (18, 150), (-10, 110), (78, 0), (0, -88))
    else:
        scenery.mat(d, 80, 149, 52, "teal" if region else "violet")
        with d.placed(82, 148, 0.74):
            front(d, _who(male, region), Pose((160, 196), (160, 196), (2, 0), (52, -78)))
    return d


def _equipment(male, region):
    d = _drawing(male, region)
    if region:
        _arch(d)
    scenery.shadow(d, 80, 150, 56)
    scenery.kettlebell(d, 28, 150, 0.95, "teal" if region else "orange")
    scenery.ball(d, 128, 151, 18, "orange" if region else TINTS[male][1])
    with d.placed(78, 149, 0.82):
        pose = Pose((20, 140), (62, 20)) if male else Pose((70, 85), (14, 145))
        ends = front(d, _who(male, region), pose)
        for key in ("left", "right"):
            scenery.dumbbell(d, *ends[key], scale=0.85)
    return d


def _bare(male, region):
    """Training without equipment."""
    d = _drawing(male, region)
    if region:
        _arch(d)
    d.add(paths.rect(8, 139, 144, 8, 4), "#FFFFFF", opacity=0.9)
    if male:
        with d.placed(66, 112, 0.84):
            side(d, _who(male, region), 70, (2, 0), (6, 2), (-65, -65), (-62, -66), -26)
    else:
        with d.placed(62, 105, 0.8):
            side(d, _who(male, region), 34, (92, 92), (84, 84), (74, -24), (70, -26), -24)
    return d


def _cover(male, region):
    """The cover of a course that has no picture of its own."""
    d = Drawing(320, 200)
    arab = bool(region)
    first, last = ("#2747A8", "#8EC5FF") if male else ("#8B3FA8", "#FFB3C9")
    if arab:
        first, last = "#1E6E66", "#F0C987"
    d.fade(first, last, line=(0, 0, 320, 200))
    for n in range(5):
        d.add(f"M{20 + n * 70} 200L{110 + n * 70} 0", None, "#FFFFFF", 16, 0.07)
    if arab:
        d.add("M190 200V96C190 60 232 50 248 18C264 50 306 60 306 96V200Z", "#FFFFFF", opacity=0.18)
    with d.placed(132, 112, 1.2):
        if male:
            side(d, _who(True, region), 14, (46, 130), (-46, 40), (64, -14), (-26, -80))
        else:
            side(d, _who(False, region), 8, (150, 165), (40, 60), (54, -6), (-30, -38))
    if male:
        scenery.kettlebell(d, 256, 186, 1.9, "gold")
    else:
        scenery.ball(d, 252, 186, 30, "gold")
    d.add("M24 186H296", None, "#FFFFFF", 4, 0.6)
    return d


def _build(male, kind):
    """Body types: slight and narrow, athletic, soft and wide."""
    d = Drawing(100, 180)
    tint, ink = {"ecto": ("#E3F4FF", "#2E9BE0"), "mezo": ("#DFF5E6", "#34B56A"), "endo": ("#FFEBD9", "#FF8A3D")}[kind]
    scenery.backdrop(d, tint)
    shape = {"ecto": dict(wide=0.76, limb=0.7), "mezo": dict(wide=1.14, limb=1.16, belly=-2.5),
             "endo": dict(wide=1.14, limb=1.3, belly=10)}[kind]
    if not male:
        shape["wide"] *= 0.98
    scenery.shadow(d, 50, 168, 30)
    pose = {"ecto": Pose(), "mezo": Pose((24, 4), (24, 4), (6, 2), (6, 2)), "endo": Pose((22, 10), (22, 10), (6, 3), (6, 3))}[kind]
    with d.placed(50, 166, 0.98):
        front(d, _who(male, None, top=ink, trim="#FFFFFF", sleeves="none", legs="short", **shape), pose)
    return d


def _measure(male, view):
    """Figures in sportswear that show how to take progress photos."""
    d = Drawing(90, 170)
    d.add(paths.rect(0, 0, 90, 170, 12), "#EEF1F6")
    d.draw("l:fog~1.5 8 24 20 24;l:fog~1.5 8 24 8 36;l:fog~1.5 82 24 70 24;l:fog~1.5 82 24 82 36;"
           "l:fog~1.5 8 160 20 160;l:fog~1.5 8 160 8 148;l:fog~1.5 82 160 70 160;l:fog~1.5 82 160 82 148")
    who = _who(male, None, sleeves="none", legs="short", trim=None if male else "#FFFFFF")
    if view == "side":
        with d.placed(43, 92, 0.95):
            side(d, who, 0, (0, 6), (-4, 2), (0, 0), (2, 0))
    else:
        with d.placed(45, 160, 0.95):
            front(d, who, Pose((16, 8), (16, 8)), back=view == "back")
    return d


def _goal(male, aim, region):
    """Training targets: running for losing weight, lifting for gaining, balance for keeping."""
    d = Drawing(200, 220)
    scenery.landscape(d, region, 170)
    who = look(male, region)
    if not male and region == "ru":
        who.top, who.trim = "#F2639A", "#FFFFFF"
    scenery.shadow(d, 92, 206, 42)
    if aim == "loss":
        with d.placed(90, 132, 1.08):
            side(d, who, 12, (40, 130), (-50, 40), (62, -12), (-28, -78))
        scenery.badge(d, 168, 34, 25, "orange", "arrow_d")
    elif aim == "gain":
        who.wide, who.limb = 1.14, 1.25
        with d.placed(92, 205, 1.08):
            ends = front(d, who, Pose((84, 172), (84, 172), (9, 1), (9, 1)))
            for key in ("left", "right"):
                scenery.dumbbell(d, *ends[key], scale=0.8)
        scenery.badge(d, 168, 34, 25, "green", "arrow_u")
    else:
        with d.placed(92, 205, 1.08):
            front(d, who, Pose((158, 190), (158, 190), (2, 0), (54, -80)))
        scenery.badge(d, 168, 34, 25, "blue", "heart")
    return d


def _load(level):
    """Activity of a day: at a desk, walking, hard at work."""
    d = Drawing(120)
    tint = {"low": "#E3F4FF", "medium": "#FFF3D1", "high": "#FFE0DC"}[level]
    d.add(paths.ellipse(60, 60, 58), tint)
    who = look(True, "plain", top={"low": "#3B7DFF", "medium": "#F5B301", "high": "#F0483E"}[level], legs="long")
    if level == "low":
        d.draw("l:slate~4 36 76 54 76;l:slate~4 36 76 33 46;l:slate~3.5 40 76 40 100;l:slate~3.5 52 76 52 100;"
               "l:brown~4 66 70 104 70;l:brown~3.5 98 70 98 100")
        with d.placed(46, 70, 0.56):
            side(d, who, 4, (30, 84), (26, 80), (86, 4), (84, 0))
        d.draw("R:night 84 50 5 19 1.5;R:night 72 66 17 3 1.5")
    elif level == "medium":
        with d.placed(60, 68, 0.6):
            side(d, who, 3, (30, 50), (-28, -6), (28, 6), (-16, -34))
    else:
        d.draw("R:bread 62 18 40 30 3;l:brown~2.5 62 32 102 32;l:brown~2.5 82 18 82 48")
        with d.placed(50, 70, 0.58):
            side(d, who, 18, (118, 124), (110, 118), (44, -20), (-22, -52))
    d.add("M26 104H94", None, "#9AA1AD", 3)
    for n in range(3):
        on = n <= ("low", "medium", "high").index(level)
        d.add(paths.rect(40 + n * 14, 109, 11, 6, 3), who.top if on else "mist")
    return d


def _place(home):
    d = Drawing(160)
    scenery.backdrop(d, "#FFF1E2" if home else "#E6EDFF")
    d.add(paths.rect(14, 134, 132, 5, 2.5), "fog")
    if home:
        d.draw("P:white M34 72H126V134H34Z;P:orange M22 78L80 28L138 78L130 86L80 44L30 86Z;R:red 106 36 12 26 1;"
               "R:brown 70 100 22 34 2;C:gold 87 118 1.8;R:sky 42 88 20 20 2;R:sky 100 88 18 20 2;"
               "l:white~2 52 88 52 108;l:white~2 42 98 62 98;l:white~2 109 88 109 108;C:green 22 122 11;C:green 140 124 9")
        d.draw("C:red 75 62 6;C:red 85 62 6;P:red M70 66L80 77L90 66Z")
    else:
        d.draw("R:blue 30 62 100 72 3;R:deep 22 52 116 14 3;R:sky 40 84 24 22 2;R:sky 96 84 24 22 2;"
               "R:white 70 92 20 42 2;l:fog~1.6 80 92 80 134;C:white 80 40 25;C:orange 80 40 21")
        scenery.dumbbell(d, 80, 40, -30, 0.75, "white")
    return d


def pictures():
    """name -> function giving its drawing"""
    result = {}
    for male in (True, False):
        boy, sex = ("Boy", "man") if male else ("Girl", "girl")
        low, body = boy.lower(), "men" if male else "women"
        for suffix, region in (("", None), (".arab", "arab")):
            for name, function in ((f"sex{boy}", _sex), (f"gym{boy}", _gym), (f"home{boy}", _home),
                                   (f"defaultCourse{boy}", _cover), (f"{low}_equipment", _equipment),
                                   (f"{low}_no_equipment", _bare)):
                if name + suffix != "homeBoy.arab":  # the application has no such picture
                    result[name + suffix] = partial(function, male, region)
        for name, function in (("age", _age), ("height", _height), ("weight", _weight)):
            result[name + boy] = partial(function, male)
        for kind in ("ecto", "mezo", "endo"):
            result[f"{body}_{kind}morph"] = partial(_build, male, kind)
        for view in ("Front", "Back", "Side"):
            result[sex + view] = partial(_measure, male, view.lower())
        for aim, word in (("loss", "weight_loss"), ("gain", "weight_gain"), ("keep", "maintain")):
            for region in ("ar", "ru"):
                result[f"{'male' if male else 'female'}_training_target_{word}_{region}"] = partial(_goal, male, aim, region)
    for level in ("low", "medium", "high"):
        result[f"daily_load_{level}"] = partial(_load, level)
    result["at_home"] = partial(_place, home=True)
    result["at_gym"] = partial(_place, home=False)
    return result
