"""Backgrounds: the landscape of each region, rooms, and things people train with."""

import glyphs  # noqa: F401  (fills the vocabulary)
import paths
from palette import REGION_COLOURS, darker

# Landscapes, in the notation of canvas.py, for a picture of width 320 with the horizon at y = 0.
MOTIFS = {
    # domes and pointed arches between palms
    "arab": """P:{far} M20 0V-70H28V-96L33 -110L38 -96V-70H60C60 -100 78 -112 92 -126C106 -112 124 -100 124 -70H300V0Z
        P:{near} M150 0V-92H302V0H282V-36C282 -54 268 -62 262 -70C256 -62 242 -54 242 -36V0H214V-36C214 -54 200 -62 194 -70C188 -62 174 -54 174 -36V0Z
        P:{far} M76 0V-34C76 -50 86 -56 92 -64C98 -56 108 -50 108 -34V0Z
        p:{ground}~7 M30 10C34 -24 32 -50 40 -78;p:{ground}~6 M40 -78C28 -90 14 -86 6 -74;p:{ground}~6 M40 -78C34 -98 20 -104 8 -98
        p:{ground}~6 M40 -78C52 -96 66 -94 74 -84;p:{ground}~6 M40 -78C50 -84 64 -76 68 -62;p:{ground}~6 M40 -78C28 -78 20 -68 18 -56""",
    # layered roofs and a blossoming branch
    "asia": """P:{far} M0 0C40 -60 70 -80 104 -96C140 -76 170 -40 200 0Z
        P:{near} M214 0V-34H286V0Z;P:{near} M196 -34C212 -38 222 -46 226 -54H274C278 -46 288 -38 304 -34Z
        P:{near} M226 -54V-78H274V-54Z;P:{near} M208 -78C222 -82 230 -90 234 -97H266C270 -90 278 -82 292 -78Z
        P:{near} M234 -97V-118H266V-97Z;P:{near} M218 -118C232 -124 242 -134 250 -150C258 -134 268 -124 282 -118Z
        p:{ground}~5 M0 -176C34 -168 56 -150 84 -156;p:{ground}~3.5 M36 -164C46 -150 48 -144 62 -134
        C:white 52 -168 8;C:white 84 -160 8;C:white 64 -134 7;C:white 24 -180 7;C:{sun} 52 -168 3;C:{sun} 84 -160 3;C:{sun} 64 -134 2.6;C:{sun} 24 -180 2.6""",
    # mountains and gabled houses
    "europe": """P:{far} M-10 0L70 -128L118 -58L160 -106L240 0Z;P:white M70 -128L88 -102L76 -92L66 -102L54 -102Z
        P:white M160 -106L174 -87L163 -82L154 -86L147 -91Z;P:{near} M200 0V-56L224 -86L248 -56V0Z;P:{near} M248 0V-74L276 -104L304 -74V0Z
        R:cream 218 -46 12 16 1;R:cream 262 -62 11 16 1;R:cream 280 -62 11 16 1;R:cream 270 -34 12 34 1
        P:{near} M18 0L34 -62L50 0Z;P:{near} M42 0L60 -78L78 0Z;P:{near} M-6 0L8 -48L22 0Z""",
    # tall palms, hills and a low sun
    "latina": """P:{far} M-10 0C20 -60 60 -70 90 -30C120 -110 170 -120 210 -40C240 -80 290 -70 330 0Z
        p:{near}~9 M52 10C48 -40 58 -90 76 -134;p:{near}~8 M76 -134C60 -150 38 -146 26 -130;p:{near}~8 M76 -134C66 -158 46 -166 30 -160
        p:{near}~8 M76 -134C84 -158 106 -166 120 -158;p:{near}~8 M76 -134C96 -146 114 -138 122 -122;p:{near}~8 M76 -134C90 -128 98 -112 98 -98
        p:{near}~8 M276 10C282 -30 272 -70 258 -104;p:{near}~7 M258 -104C240 -116 222 -110 216 -94;p:{near}~7 M258 -104C252 -124 236 -130 222 -124
        p:{near}~7 M258 -104C266 -122 286 -124 298 -114;p:{near}~7 M258 -104C274 -108 288 -98 292 -84""",
    # towers of a big city
    "usa": """P:{far} M0 0V-70H34V-120H66V-50H92V-150H104V-176H110V-150H124V-40H150V-104H190V-64H216V-132L238 -150V0Z
        P:{near} M0 0V-40H22V-84H50V0ZM66 0V-76H98V0ZM226 0V-92H262V0ZM262 0V-140H270V-158H276V-140H284V0ZM284 0V-62H320V0Z
        R:{sun} 30 -74 5 7;R:{sun} 38 -74 5 7;R:{sun} 30 -60 5 7;R:{sun} 74 -64 5 7;R:{sun} 85 -64 5 7;R:{sun} 74 -48 5 7
        R:{sun} 234 -80 6 8;R:{sun} 247 -80 6 8;R:{sun} 234 -62 6 8;R:{sun} 292 -50 6 8;R:{sun} 305 -50 6 8;R:{sun} 305 -34 6 8""",
    # a training hall: wall bars and a window front
    "plain": """R:{far} 16 -150 96 118 8;R:{sky1} 24 -142 36 102 4;R:{sky1} 68 -142 36 102 4
        l:{near}~7 236 0 236 -150;l:{near}~7 300 0 300 -150;l:{near}~5 236 -134 300 -134;l:{near}~5 236 -108 300 -108
        l:{near}~5 236 -82 300 -82;l:{near}~5 236 -56 300 -56;l:{near}~5 236 -30 300 -30""",
    # firs and birches in the snow
    "ru": """P:{far} M-10 0C40 -50 90 -60 140 -30C190 -70 260 -70 330 0Z;l:white~11 50 10 50 -150;l:slate~3 46 -120 51 -120
        l:slate~3 50 -92 55 -92;l:slate~3 46 -60 51 -60;l:slate~3 50 -30 55 -30;l:white~9 84 10 84 -130;l:slate~3 81 -96 85 -96;l:slate~3 84 -50 88 -50
        P:{near} M230 0L262 -54H246L268 -92H254L274 -126L294 -92H280L302 -54H286L318 0Z;P:white M274 -126L264 -108L274 -112L284 -108Z""",
}


def landscape(d, region, horizon):
    """Sky, sun, the region's motif and the ground over the whole drawing. The names of pictures of training targets say
    "ar" for "arab"."""
    region = "arab" if region == "ar" else region
    c = REGION_COLOURS[region]
    k = d.width / 320
    d.fade(c["sky"][0], c["sky"][1])
    d.add(paths.ellipse(d.width * 0.62, horizon - 150 * k, 40 * k), c["sun"], opacity=0.8)
    with d.placed(0, horizon, k):
        d.draw(MOTIFS[region], far=c["far"], near=c["near"], ground=c["ground"], sun=c["sun"],
               sky1=c["sky"][1])
    d.add(paths.rect(0, horizon, d.width, d.height - horizon), c["ground"])
    d.add(f"M0 {horizon}H{d.width}", None, darker(c["ground"], 0.9), 2 * k, butt=True)


def backdrop(d, tint):
    """A rounded plate behind a small picture."""
    d.add(paths.rect(0, 0, d.width, d.height, d.width * 0.12), tint)


def shadow(d, x, y, rx):
    d.add(paths.ellipse(x, y, rx, rx * 0.13), "#101828", opacity=0.16)


def dumbbell(d, x, y, turn=0, scale=1, colour="night"):
    with d.placed(x, y, scale, turn):
        d.draw(f"l:grey~4 -14 0 14 0;R:{colour} -17 -9 6 18 2;R:{colour} 11 -9 6 18 2;"
               f"R:{colour} -21 -6 4 12 1.5;R:{colour} 17 -6 4 12 1.5")


def barbell(d, x, y, half=70, scale=1, plate="red"):
    with d.placed(x, y, scale):
        d.draw(f"l:grey~3.4 {-half} 0 {half} 0;R:night {-half + 3} -19 7 38 2.5;R:night {half - 10} -19 7 38 2.5;"
               f"R:{plate} {-half + 11} -14 6 28 2.5;R:{plate} {half - 17} -14 6 28 2.5")


def kettlebell(d, x, y, scale=1, colour="orange"):
    with d.placed(x, y, scale):
        d.draw(f"p:slate~4.5 M-7 -16C-12 -32 12 -32 7 -16;C:{colour} 0 -11 11.5;E:white/0.3 -4 -15 3 4")


def ball(d, x, y, r, colour="teal"):
    d.add(paths.ellipse(x, y - r, r), colour)
    d.add(f"M{x - r * 0.8} {y - r * 1.5}Q{x} {y - r * 1.1} {x + r * 0.8} {y - r * 1.5}"
          f"M{x - r * 0.9} {y - r * 0.6}Q{x} {y - r * 0.2} {x + r * 0.9} {y - r * 0.6}", None, "#FFFFFF",
          r * 0.07, 0.5)


def mat(d, x, y, half, colour="teal"):
    d.add(paths.rect(x - half, y - 2, half * 2, 7, 3.5), colour)
    d.add(paths.ellipse(x + half - 1, y - 1, 6), darker(colour))


def gym(d, floor, tint="#E3EBFB", line="#C3D2F2"):
    """A hall: a mirror in four parts, and dumbbells on two shelves."""
    w = d.width
    d.add(paths.rect(0, 0, w, d.height), tint)
    d.add(paths.rect(w * 0.06, floor - 104, w * 0.88, 70, 4), "#FFFFFF", opacity=0.75)
    for k in (0.28, 0.5, 0.72):
        d.add(f"M{w * k} {floor - 104}V{floor - 34}", None, line, 1.5)
    d.add(paths.rect(0, floor, w, d.height - floor), "slate")
    for row in (0, 1):
        y = floor - 26 + row * 16
        d.add(f"M{w * 0.06} {y + 5}H{w * 0.94}", None, line, 3)
        for n in range(6):
            x = w * (0.12 + n * 0.152)
            d.add(paths.rect(x - 7, y - 4, 4, 9, 1.2), "#8E9BB8")
            d.add(paths.rect(x + 3, y - 4, 4, 9, 1.2), "#8E9BB8")
            d.add(f"M{x - 4} {y}H{x + 4}", None, "#8E9BB8", 2)


def room(d, floor, wall, ground, arch=False):
    """A living room: a window, which may have a pointed arch, and a plant."""
    w = d.width
    d.add(paths.rect(0, 0, w, d.height), wall)
    d.add(paths.rect(0, floor, w, d.height - floor), ground)
    if arch:
        d.add(f"M12 {floor - 34}V{floor - 82}C12 {floor - 98} 26 {floor - 102} 34 {floor - 114}"
              f"C42 {floor - 102} 56 {floor - 98} 56 {floor - 82}V{floor - 34}Z", "#CFEAF5", "#FFFFFF", 3.5)
        d.add(f"M34 {floor - 112}V{floor - 34}M12 {floor - 70}H56", None, "#FFFFFF", 2.5)
    else:
        d.add(paths.rect(12, floor - 108, 46, 64, 3), "#CFEAF5", "#FFFFFF", 3.5)
        d.add(f"M35 {floor - 108}V{floor - 44}M12 {floor - 76}H58", None, "#FFFFFF", 2.5)
    with d.placed(w - 17, floor):
        d.draw("P:orange M-8 -16H8L6 2H-6Z;P:leaf M0 -16C-14 -22 -14 -38 -10 -42C-2 -36 0 -26 0 -16Z;"
               "P:green M0 -16C14 -22 14 -42 8 -48C0 -40 -2 -26 0 -16Z")


def badge(d, x, y, r, colour, glyph):
    """A round mark with a white glyph."""
    d.add(paths.ellipse(x, y, r), "#FFFFFF")
    d.add(paths.ellipse(x, y, r * 0.88), colour)
    ink, pen = d.ink, d.pen
    d.ink, d.pen = "white", 3
    with d.placed(x - r * 0.56, y - r * 0.56, r * 1.12 / 24):
        d.draw(f"u {glyph}")
    d.ink, d.pen = ink, pen
