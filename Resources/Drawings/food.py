"""Food pictures: the diet categories and a few single dishes, on a 48 x 48 grid."""

from functools import partial

from canvas import Drawing

# number of the category in the asset's name -> (what is drawn, operations)
CATEGORIES = {
    59: ("bread", """P:bread M8 20C4 12 12 8 24 8S44 12 40 20V38A3 3 0 0 1 37 41H11A3 3 0 0 1 8 38Z
        P:cream M12.5 19C9.5 14 15 12 24 12S38.5 14 35.5 19V37H12.5Z
        l:tan~1.6 19 20 21 24;l:tan~1.6 27 26 29 30;l:tan~1.6 19 30 21 33"""),
    60: ("bowl of porridge", """E:cream 24 22 17 6;P:blue M5 22H43C43 33 36 40 24 40S5 33 5 22Z
        P:white/0.25 M9 27C11 33 15 36 19 37.5L17 27Z;E:bread 24 22 14 3.6;C:red 20 21.5 2;C:red 27 22.5 2
        C:violet 23.5 20.3 1.6;p:grey~1.8 M17 13C15 10 19 9 17 6;p:grey~1.8 M30 13C28 10 32 9 30 6"""),
    61: ("pasta", """p:yellow~3 M10 24C8 14 20 12 22 20S34 28 36 18;p:gold~3 M14 25C12 12 30 8 34 16S40 22 40 24
        p:yellow~3 M18 25C20 14 30 16 31 25;C:red 25 13 4;P:red M5 25H43C43 35 36 41 24 41S5 35 5 25Z
        P:white/0.2 M9 29C11 34 14 37 19 38.5L17 29Z;P:leaf M25 9.5C27 6 30 6 31 7C30 10 28 10.5 25 9.5Z"""),
    62: ("rice", """E:white 24 18 15 9;e:mist~1 24 18 15 9;l:fog~2 16 17 18 15;l:fog~2 22 13 25 13;l:fog~2 29 16 31 18
        l:fog~2 22 19 24 17.5;P:night M5 22H43C43 34 36 41 24 41S5 34 5 22Z;R:red 6 25 36 2.4
        l:brown~2 34 20 45 6;l:brown~2 30 20 40 5"""),
    63: ("potato", """P:tan M9 27C6 17 15 9 25 10S43 17 41 27S29 40 21 39S11 35 9 27Z
        E:bread 21 21 8 5;C:brown 31 20 1.5;C:brown 34 28 1.3;C:brown 24 33 1.5;C:brown 15 30 1.2"""),
    64: ("chicken leg", """P:#C9722E M20 8C30 2 43 10 41 22C39 31 29 31 24 33C19 35 14 31 15 25C16 18 13 13 20 8Z
        P:#E8984E M23 12C29 8 37 12 37 19C33 15 28 14 23 12Z;l:#EADBC8~5.5 17 31 10 38
        C:#EADBC8 8 37 3.5;C:#EADBC8 11 40.5 3.5"""),
    65: ("steak", """P:#B23A48 M8 22C8 11 20 7 30 9S44 19 41 28S31 33 26 37S10 39 8 30Z
        p:cream~3 M8 22C8 11 20 7 30 9S44 19 41 28S31 33 26 37S10 39 8 30Z;C:cream 31 20 4.5;C:fog 31 20 2.2
        p:#E8808A~1.8 M14 23C16 18 19 16 23 15;p:#E8808A~1.8 M16 31C19 28 22 27 25 27"""),
    66: ("fish", """P:teal M6 24C11 14 24 11 33 22L43 14C41 20 41 28 43 34L33 26C24 37 11 34 6 24Z
        P:mint M6 24C11 29 22 31 33 26C24 37 11 34 6 24Z;C:white 14 22 2.6;C:ink 14 22 1.3
        p:deep~1.6 M20 18C22.5 21.5 22.5 26.5 20 30;p:deep~1.6 M25 19.5C27 22 27 26 25 28.5"""),
    67: ("prawn", """p:#FF8A6B~9 M34 13C22 8 11 15 12 25S22 38 30 35;p:#FFC2AE~1.6 M22 12L23.5 18
        p:#FFC2AE~1.6 M14.5 18L20 21.5;p:#FFC2AE~1.6 M13 28L18.5 26;p:#FFC2AE~1.6 M19 35.5L21.5 30.5
        P:red M29 35L38 30L38 41Z;C:ink 32.5 12.6 1.5;p:#FF8A6B~1.8 M36 12C40 10 43 12 44 15;p:#FF8A6B~1.8 M36 14C39 14 41 17 41 20"""),
    68: ("egg", """E:#F4E3CC 19 27 12.5 16;E:white 17 23 3.5 5.5;E:white 32 31 11.5 11.5;e:mist~1.2 32 31 11.5 11.5
        C:yellow 32 31 5.5;C:cream 30.5 29.3 1.6"""),
    69: ("milk", """P:sky M14 16L19 9H29L34 16V42H14Z;P:white M14 24H34V42H14Z;r:blue~1.6 14 24 20 18;R:blue 18 4 12 6 1.5
        p:blue~1.6 M14 24V16L19 9.5H29L34 16V24;P:blue M24 27C28 32 28.5 33.5 28.5 35A4.5 4.5 0 0 1 19.5 35C19.5 33.5 20 32 24 27Z"""),
    70: ("yoghurt", """P:white M11 17H37L34 41A2 2 0 0 1 32 43H16A2 2 0 0 1 14 41Z;P:pink M12.3 25H35.7L34.5 35H13.5Z
        p:fog~1.4 M11 17H37L34 41A2 2 0 0 1 32 43H16A2 2 0 0 1 14 41Z;R:violet 9 13 30 4.5 2
        C:white 21 30 2.8;C:white 27 29 2.8;l:slate~2.4 30 13 37 4"""),
    71: ("cheese", """P:yellow M5 29L29 11C36 12 42 18 43 26L43 29Z;P:gold M5 29H43V39H5Z;C:cream 29 20 3.4
        E:#D99A00 14 34 3 2.4;E:#D99A00 27 36 3.4 2.2;E:#D99A00 37 33 2.6 2;C:gold 21 25 2"""),
    72: ("butter", """P:yellow M10 21L17 15H42V30L36 36H10Z;P:cream M10 21L17 15H42L36 21Z;P:gold M36 21L42 15V30L36 36Z
        R:fog 4 36 40 4 2;P:yellow M5 27L10 22V36H5Z;l:gold~1.4 16 25 16 32;l:gold~1.4 22 25 22 32;l:gold~1.4 28 25 28 32"""),
    73: ("oil", """P:lime M18 16C18 19 13 20 13 26V41A3 3 0 0 0 16 44H32A3 3 0 0 0 35 41V26C35 20 30 19 30 16V9H18Z
        R:leaf 19 3 10 7 2;R:cream 13 28 22 10;E:leaf 22 33 2.6 3.4;E:leaf 27.5 33 2 2.6;l:white/0.6~2 17 24 17 26"""),
    74: ("nuts", """P:#B5743B M24 14C34 14 40 20 38 30C36 39 29 43 24 44C19 43 12 39 10 30C8 20 14 14 24 14Z
        P:brown M8 19C8 10 16 7 24 7S40 10 40 19C33 23 15 23 8 19Z;l:brown~3 24 7 24 3
        p:#D99A5B~2 M17 26C17 31 19 35 21 37;l:#6E4327~1.5 15 13 15 17;l:#6E4327~1.5 24 12 24 18;l:#6E4327~1.5 33 13 33 17"""),
    75: ("beans", """P:wine M8 20C8 12 16 9 20 13S25 17 28 20S28 31 21 31S8 28 8 20Z;P:#C24A6A M12 19C12 15 15 14 17 15C16 17 14 18 12 19Z
        P:#6F2038 M22 33C22 25 30 22 34 26S38 29 40 32S40 42 33 42S22 40 22 33Z;P:#A13A58 M26 32C26 28.5 28.5 28 30 28.5C29.5 30.5 28 31 26 32Z
        P:#8C2F4A M31 15C31 9 37 7 40 10S43 12 44 15S43 21 38 21S31 20 31 15Z"""),
    76: ("broccoli", """P:lime M19 26H29L30 42A2 2 0 0 1 28 44H20A2 2 0 0 1 18 42Z;l:lime~5 21 32 13 25;l:lime~5 27 32 35 25
        C:green 12 21 7.5;C:green 36 21 7.5;C:green 24 13 9.5;C:leaf 18 21 7;C:leaf 30 21 7;C:leaf 24 17 5
        C:lime 20 9 1.5;C:lime 10 18 1.3;C:lime 36 17 1.3;C:lime 27 12 1.5"""),
    77: ("carrot", """P:orange M30 12C37 14 38 20 35 24L13 43C8 45 4 41 6 36L22 15C24 12 27 11 30 12Z
        P:green M30 14C28 8 31 4 33 3C35 7 34 9 33 12C36 8 40 6 44 8C42 12 38 14 34 14.5C38 14.5 42 16 43 19C38 20 34 18 30 14Z
        l:#D9641A~1.8 21 22 26 26;l:#D9641A~1.8 14 32 18 35.5;l:#D9641A~1.8 27 18 30 20.5"""),
    78: ("tomato", """C:red 24 27 17;P:#FF8A80 M12 24C13 18 17 16 20 16C17 19 15 22 14.5 27Z
        P:leaf M24 15L15 11L21 17L14 20L23 19L25 25L27 19L35 20L28 16L33 10L25.5 14.5L25 6H22Z"""),
    79: ("salad", """C:lime 15 19 7;C:green 24 14 8;C:lime 33 19 7;C:red 20 20 4.5;C:#FF8A80 20 20 2
        P:leaf M28 13C34 9 38 12 37 18C33 19 29 18 28 13Z;C:cream 30 22 3.6;P:#C98B4B M5 24H43C43 34 36 41 24 41S5 34 5 24Z
        P:white/0.25 M9 28C11 33 14 36 19 38L17 28Z"""),
    80: ("grapes", """C:violet 17 20 5.5;C:#9377FF 31 20 5.5;C:#5B3FD0 24 20 5.5
        C:#9377FF 20.5 28 5.5;C:violet 27.5 28 5.5;C:#5B3FD0 24 36 5.5;l:brown~2.4 24 14 25 5
        P:green M25 9C29 3 37 4 39 9C34 13 28 12 25 9Z"""),
    81: ("orange", """C:orange 24 25 17.5;C:cream 24 25 14.5;C:#FF9F45 24 25 13;l:cream~2 24 12 24 38;l:cream~2 11 25 37 25
        l:cream~2 15 16 33 34;l:cream~2 33 16 15 34;C:cream 24 25 2.4;P:green M26 8C28 2 35 2 39 4C37 9 31 11 26 8Z"""),
    82: ("honey", """P:gold M11 18H37V39A4 4 0 0 1 33 43H15A4 4 0 0 1 11 39Z;P:orange M11 28C17 24 22 32 28 28S35 27 37 28V39A4 4 0 0 1 33 43H15A4 4 0 0 1 11 39Z
        R:brown 9 11 30 7 2.5;R:cream 16 25 16 10 2;g:gold~1.6 24 26.5 27 28.2 27 31.8 24 33.5 21 31.8 21 28.2;P:white/0.5 M14 21H17V24H14Z"""),
    83: ("chocolate", """R:#6B3E26 9 6 24 36 2.5;R:#8A5637 12 9 8 7 1;R:#8A5637 22 9 8 7 1;R:#8A5637 12 18 8 7 1;R:#8A5637 22 18 8 7 1
        P:red M6 27L12 25L18 28L24 25L30 28L36 25V44H6Z;R:#FFB3AD 6 32 30 6;P:#8A5637 M36 10L43 14L39 21L34 18Z"""),
    84: ("coffee", """P:white M9 18H35V31A9 9 0 0 1 26 40H18A9 9 0 0 1 9 31Z;p:fog~1.6 M9 18H35V31A9 9 0 0 1 26 40H18A9 9 0 0 1 9 31Z
        p:fog~3 M35 21H38A4 4 0 0 1 38 31H35;E:#6B3E26 22 18.5 12 2.6;R:tan 5 41 34 3 1.5;C:brown 22 29 4.2;p:cream~1.4 M22 25C20.5 28 23.5 30 22 33
        p:grey~2 M17 14C15 11 19 9 17 5;p:grey~2 M26 14C24 11 28 9 26 5"""),
    85: ("protein shake", """P:white M13 14H35L33 42A2.5 2.5 0 0 1 30.5 44H17.5A2.5 2.5 0 0 1 15 42Z;P:pink M13.8 22H34.2L33 42A2.5 2.5 0 0 1 30.5 44H17.5A2.5 2.5 0 0 1 15 42Z
        p:fog~1.4 M13 14H35L33 42A2.5 2.5 0 0 1 30.5 44H17.5A2.5 2.5 0 0 1 15 42Z;R:night 11 9 26 6 2;R:night 19 4 10 6 2
        l:white~2 19 33 29 33;R:white 18 30 2.6 6 1;R:white 28 30 2.6 6 1"""),
}

# asset's name -> operations
DISHES = {
    "banana": """P:yellow M9 9C11 6 14 6 15 9C17 24 27 32 41 30C44 31 45 34 43 36C25 45 7 32 9 9Z
        P:#E8A800 M10 16C12 28 23 37 40 36.5L43 36C25 45 7 32 9 14Z;P:brown M9 9C10 6 13 5 14.5 7L15 10L9.2 11Z
        P:brown M41 30L44.5 31L45 35L42 35Z;p:#E8A800~1.2 M15 16C18 25 27 31 38 32""",
    "fried_egg": """P:white M7 25C4 15 12 8 21 9S31 5 38 10S43 22 42 28S37 41 28 40S12 41 9 35S8 29 7 25Z
        p:mist~1.5 M7 25C4 15 12 8 21 9S31 5 38 10S43 22 42 28S37 41 28 40S12 41 9 35S8 29 7 25Z
        C:gold 25 24 9.5;C:yellow 24.5 23.5 8;E:cream 21.5 20 2.6 1.8""",
    "omlet": """E:night 20 28 18 13;E:slate 20 26.5 17 11.5;l:night~5 36 22 46 12
        P:yellow M5 27C7 18 16 16 22 17S35 22 35 28S24 34 17 34S4 33 5 27Z
        P:gold M5 28C12 33 25 32 35 28C35 33 25 35.5 17 35S4 33 5 28Z;C:leaf 15 22 1.3;C:red 21 24 1.6;C:leaf 27 23 1.3;C:red 12 26 1.4""",
    "meals_count_image": """C:mist 24 25 19;C:white 24 25 15.5;c:fog~1.4 24 25 10.5;p:slate~2.4 M5 7V13A3 3 0 0 0 11 13V7
        l:slate~2.4 8 7 8 41;p:slate~2.4 M41 41V7C37 9 36 15 36 24H41;P:orange M24 25V14.5A10.5 10.5 0 0 1 33.1 30.2Z
        P:green M24 25L33.1 30.2A10.5 10.5 0 0 1 14.9 30.2Z;P:blue M24 25L14.9 30.2A10.5 10.5 0 0 1 24 14.5Z""",
}


def _dish(text, size):
    drawing = Drawing(size)
    with drawing.placed(scale=size / 48):
        drawing.draw(text)
    return drawing


def pictures():
    """name -> function giving its drawing"""
    result = {f"diet_category_{n}_icon": partial(_dish, text, 48) for n, (_, text) in CATEGORIES.items()}
    for name, text in DISHES.items():
        size = 96 if name.endswith("_image") else 64
        result[name] = partial(_dish, text, size)
    return result
