"""Placeholders, advice pictures, avatars, logos and the other small pictures."""

from functools import partial

import paths
import scenery
from canvas import Drawing
from people import bust, look, side

# For empty pages: name -> (tint of the background, colour, main glyph, [(small glyph, x, y)])
EMPTY = {
    "addAnalytics": ("sky", "blue", "pie", [("bars", 128, 96)]),
    "addCard": ("lilac", "violet", "card", [("plus", 130, 104)]),
    "addCoach": ("mint", "teal", "user", [("stopwatch", 128, 98)]),
    "addDiet": ("#DFF5E6", "green", "apple", [("fork", 128, 98)]),
    "addMeasurements": ("cream", "orange", "tape", [("ruler", 128, 48)]),
    "addMessagePlaceholder": ("sky", "blue", "talk", [("smile", 132, 40)]),
    "addOrder": ("peach", "orange", "bag", [("plus", 128, 100)]),
    "addSportFood": ("rose", "pink", "shaker", [("bolt", 128, 60)]),
    "blocked_users": ("rose", "red", "users", [("block", 126, 100)]),
    "coursesError": ("rose", "red", "screen", [("warning", 126, 98)]),
    "emptyClients": ("lilac", "violet", "group", [("search", 128, 102)]),
    "emptyComments": ("sky", "deep", "round_bubble", [("dots", 76, 72)]),
    "emptyFavorites": ("rose", "pink", "heart", [("star", 130, 46)]),
    "emptyInvoices": ("mint", "teal", "receipt", [("coins", 126, 102)]),
    "exercisesHistoryPlaceholder": ("lilac", "violet", "dumbbell", [("clock", 124, 104)]),
    "healthKitPermission": ("rose", "red", "heart", [("pulse", 78, 74)]),
    "notificationsPermission": ("cream", "orange", "bell", [("check", 124, 98)]),
    "searchEmpty": ("sky", "blue", "search", [("ask", 67, 64)]),
    "chart_placeholder": ("mint", "teal", "curve", [("flag", 128, 34)]),
}
# name -> (tint of the background, colour, glyph, operations drawn over it)
ADVICE = {
    "advice1": ("sky", "blue", "glass", "P:blue/0.35 M7.2 11.5H16.8L16 20H8Z"),
    "advice2": ("lilac", "violet", "moon", "S:gold 18 5.5 2.6 1.1;S:gold 20.5 9.5 1.6 .7"),
    "advice3": ("#DFF5E6", "green", "apple", "P:green/0.3 M12 8.3C14.5 7 19 8 19 12.5C19 17 16.5 20 14.7 20C13.5 20 13 19.5 12 19.5Z"),
    "advice4": ("cream", "orange", "sun", "p:blue~1 M3 21C5 19.5 7 19.5 9 21S13 22.5 15 21S19 19.5 21 21"),
    "advice5": ("rose", "pink", "shoe", "l:pink~1 1 5 6 5;l:pink~1 3 3 8 3"),
    "advice_registration": ("mint", "teal", "clip", "l~1 8.5 11 15.5 11;l~1 8.5 14 15.5 14;C:orange 18 18 4.5;l:white~1 16 18.2 17.5 19.7 20.2 16.8"),
}
# The pictures that have a version for dark mode.
DARK = {"chart_placeholder", "searchEmpty", "emptyClients", "emptyFavorites", "blocked_users", "emptyComments"}


def _scene(d, tint, colour, dark):
    """The background: a rounded shape, a shadow and three dots."""
    d.add("M90 12C122 4 158 20 166 56C174 90 172 124 142 144C112 164 60 166 32 144C4 122 4 82 18 56"
          "C32 30 58 20 90 12Z", "#2C2F3A" if dark else tint)
    scenery.shadow(d, 90, 156, 52)
    for x, y, r in ((22, 34, 5), (160, 24, 4), (14, 122, 3.5)):
        d.add(paths.ellipse(x, y, r), colour, opacity=0.55)


def _empty(name, dark=False):
    tint, colour, glyph, extras = EMPTY[name]
    d = Drawing(180)
    _scene(d, tint, colour, dark)
    d.ink, d.pen, d.body = ("white" if dark else "night"), 1.1, ("#454A5A" if dark else "white")
    with d.placed(42, 40, 4):
        d.draw(f"u {glyph}")
    for small, x, y in extras:
        # An inner glyph is drawn into the main one, others on a disc of their own.
        inner = glyph in ("round_bubble", "search") or small == "pulse"
        d.ink, d.pen, d.body = (colour, 2.4, None) if inner else ("white", 2.4, None)
        if not inner:
            d.add(paths.ellipse(x + 14, y + 14, 24), "#2C2F3A" if dark else tint)
            d.add(paths.ellipse(x + 14, y + 14, 20), colour)
        if inner and dark:
            d.ink = "sky"
        k = 1.6 if inner else 1
        with d.placed(x - 14 * (k - 1) + 3.4 * inner, y - 14 * (k - 1) + 6 * inner, 28 / 24 * k):
            d.draw(f"u {small}")
    return d


def _advice(name):
    tint, colour, glyph, extra = ADVICE[name]
    d = Drawing(96)
    d.add(paths.rect(0, 0, 96, 96, 24), tint)
    d.ink, d.pen, d.body = colour, 1.3, "white"
    with d.placed(18, 18, 2.5):
        d.draw(f"u {glyph}")
        d.body = None
        d.draw(extra)
    return d


def _avatar(number):
    d = Drawing(64)
    male, region, tint = ((True, "plain", "#DCE8FF"), (False, "europe", "#DFF5E6"), (True, "latina", "#FFF1CC"),
                          (False, "asia", "#FFE0EC"))[number - 1]
    d.add(paths.rect(0, 0, 64, 64), tint)
    bust(d, look(male, region), 32, 65, 0.62)
    return d


def _quill(d, x, y, scale, colour="white", accent="gold"):
    """The product's logo: a quill whose nib draws a rising line."""
    with d.placed(x, y, scale):
        d.draw(f"P:{colour} M6 19C7 11 12 4 21 2C21.5 9 17 15 10 16.5L8.2 19.6Z;p:{accent}~1.1 M7 19C10 14 13 10.5 17 7;"
               f"p:{colour}~1.8 M2 21.8H6.5L8.6 19.8L11 21.8H22")


def _logo(size):
    d = Drawing(size)
    d.fade("#7A5CF0", "#3B7DFF", paths.rect(0, 0, size, size, size * 0.24))
    _quill(d, size * 0.16, size * 0.16, size * 0.68 / 24)
    return d


def _welcome_logo():
    d = Drawing(160, 120)
    d.fade("#7A5CF0", "#3B7DFF", paths.ellipse(80, 60, 56))
    for x, inwards in ((14, 1), (146, -1)):
        d.draw(f"R:violet {x - 5} 40 10 40 4;R:blue {x + 8 * inwards - 4} 46 8 28 3")
    d.draw("R:night 0 56 10 8 3;R:night 150 56 10 8 3")
    _quill(d, 42, 24, 3.1)
    return d


def _subscription_logo():
    d = Drawing(96)
    d.fade("#F5B301", "#FF8A3D", paths.ellipse(48, 50, 42))
    d.draw("P:white M35 33L32 18L41 25L48 13L55 25L64 18L61 33Z;C:orange 48 27 2.4")
    _quill(d, 26, 37, 1.9)
    return d


def _bubble(own):
    d = Drawing(60, 44)
    if own:
        d.add("M16 2H42A14 14 0 0 1 56 16V28C56 36 58 40 60 42C54 42 50 41 48 40C46 41.4 44 42 42 42H16"
              "A14 14 0 0 1 2 28V16A14 14 0 0 1 16 2Z", "blue")
    else:
        d.add("M18 2H44A14 14 0 0 1 58 16V28A14 14 0 0 1 44 42H18C16 42 14 41.4 12 40C10 41 6 42 0 42"
              "C2 40 4 36 4 28V16A14 14 0 0 1 18 2Z", "mist")
    return d


def _cup():
    d = Drawing(96)
    d.draw("C:cream 48 48 46;p:gold~6 M30 26H16C16 42 22 50 33 51;p:gold~6 M66 26H80C80 42 74 50 63 51;"
           "P:gold M28 16H68V42C68 56 59 63 48 63S28 56 28 42Z;P:#D99A00 M56 16H68V42C68 55 60 62 50 63C56 58 58 50 58 40Z;"
           "R:#D99A00 44 62 8 12;P:brown M32 84C32 76 38 73 48 73S64 76 64 84Z;S:white 45 36 11 4.8")
    return d


def _feed():
    d = Drawing(320, 200)
    d.fade("#FFB88C", "#DE6FA1", line=(0, 0, 0, 200))
    d.add(paths.ellipse(214, 112, 34), "#FFE9A8")
    d.add("M-10 150L60 84L104 126L168 56L236 132L280 98L340 150V200H-10Z", "#8C4C8F", opacity=0.75)
    d.add("M-10 172C60 132 120 176 180 154S290 138 340 164V200H-10Z", "#4B2A66")
    with d.placed(96, 122, 0.62):
        side(d, look(True, "plain", top="#FFC93C"), 12, (40, 130), (-50, 40), (62, -12), (-28, -78))
    return d


def _header():
    d = Drawing(375, 180)
    d.fade("#1D2B64", "#3B7DFF", line=(0, 0, 375, 180))
    for n in range(6):
        d.add(paths.ellipse(40 + n * 66, 190 - (n % 3) * 16, 54 + (n % 2) * 22), "#FFFFFF", opacity=0.06)
    d.add("M-10 128C80 70 130 150 210 100S330 60 390 84V180H-10Z", "#19B5A5", opacity=0.35)
    scenery.dumbbell(d, 300, 70, -28, 2.2, "sky")
    return d


def _exercise():
    d = Drawing(160, 120)
    scenery.gym(d, 98, "#E3EBFB", "#C3D2F2")
    with d.placed(62, 80, 0.62):
        side(d, look(False, "plain", top="#F2639A"), 30, (92, 92), (84, 84), (74, -24), (70, -26), -20)
    scenery.kettlebell(d, 132, 113, 0.8)
    return d


def _about():
    d = Drawing(180)
    _scene(d, "lilac", "violet", dark=False)
    d.draw("R:white 34 40 112 104 12;R:violet 34 40 112 24 12;R:violet 34 52 112 12;R:mist 92 82 42 7 3.5;R:mist 92 98 34 7 3.5;R:mist 46 124 88 7 3.5")
    d.add(paths.rect(44, 74, 40, 42, 8), "#DCE8FF")
    bust(d, look(False, "latina"), 64, 116, 0.42)
    return d


def _photo():
    d = Drawing(180)
    _scene(d, "mint", "teal", dark=False)
    d.draw("R:white 40 34 100 112 12;R:#FFF1CC 48 42 84 78 8")
    bust(d, look(True, "asia"), 90, 120, 0.86)
    d.draw("C:teal 134 132 23;C:white 134 132 20;C:teal 134 132 17")
    d.ink, d.pen = "white", 2.4
    with d.placed(123, 121, 0.92):
        d.draw("u camera")
    return d


def _chat():
    d = Drawing(120, 96)
    d.draw("R:mint 30 6 84 54 16;P:mint M92 52L104 76L74 58Z;R:teal 4 30 64 44 14;P:teal M16 66L12 88L36 72Z;"
           "C:white 22 52 4;C:white 36 52 4;C:white 50 52 4;l:teal~4 58 22 98 22;l:teal~4 78 36 98 36")
    return d


def _plain(size, text, template=False):
    d = Drawing(size)
    d.template = template
    d.draw(text)
    return d


def pictures():
    """name -> function giving its drawing"""
    result = {name: partial(_empty, name) for name in EMPTY}
    result.update({name: partial(_advice, name) for name in ADVICE})
    result.update({f"ava_{n}": partial(_avatar, n) for n in range(1, 5)})
    result.update({
        "profileAbout": _about, "profilePhoto": _photo,
        "welcom_logo": _welcome_logo, "logo_small": partial(_logo, 32), "subscription_logo": _subscription_logo,
        "bubble_1": partial(_bubble, own=False), "bubble_2": partial(_bubble, own=True), "cup": _cup,
        "feedPlaceholder": _feed, "trainer_header_background": _header, "exercise_test_image": _exercise,
        "course_start_chat": _chat,
        "red_point": partial(_plain, 12, "C:red 6 6 5"),
        "button_add_placeholder": partial(
            _plain, 96, "R:paper 2 2 92 92 18;r:fog~2.5 2 2 92 92 18;C:white 48 48 22;l:blue~4 48 37 48 59;l:blue~4 37 48 59 48"),
        "diet_spinner": partial(
            _plain, 40, "c:mist~4 20 20 16;p:green~4 M20 4A16 16 0 0 1 36 20;P:green M20 28C14 26 13 18 18 13C25 14 28 21 24 27Z"
                        ";l:white~1.5 21 25 20 18"),
        "arrow": partial(_plain, 24, "l 3 12 19 12;L 14.5 6 22 12 14.5 18", template=True),
        "card": partial(
            _plain, 40, "R:blue 3 8 34 24 4;R:deep 3 13 34 5;R:gold 7 22 7 5 1.5;l:white~1.6 24 26 33 26;l:white~1.6 28 22 33 22"),
        "choose": partial(_plain, 24, "R:green 2 2 20 20 6;l:white~2.4 6.8 12.5 10.4 16 17.2 8.6"),
    })
    return result


def dark_pictures():
    """name -> function giving the drawing for dark mode"""
    return {name: partial(_empty, name, dark=True) for name in sorted(DARK)}
